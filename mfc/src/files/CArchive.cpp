#include <classes/CArchive.h>

#include "files/ArchiveObjects.h"

#include <utility>

namespace {

constexpr UINT smallestBuffer = 128;

} // namespace

CArchive::CArchive(CFile* pFile, UINT nMode, int nBufSize, void* lpBuf)
    : file_(pFile), mode_(nMode), size_(nBufSize > 0 ? static_cast<UINT>(nBufSize) : 0),
      buffer_(static_cast<BYTE*>(lpBuf)), ownsBuffer_(lpBuf == NULL || size_ == 0)
{
    if (pFile == NULL)
        AfxThrowInvalidArgException();
    if (ownsBuffer_) {
        size_ = max(size_, smallestBuffer);
        buffer_ = static_cast<BYTE*>(malloc(size_));
        if (buffer_ == NULL)
            AfxThrowMemoryException();
    }
    current_ = buffer_;
    end_ = IsLoading() ? buffer_ : buffer_ + size_;
}

CArchive::~CArchive() noexcept(false)
{
    struct Ending
    {
        CArchive& archive;
        ~Ending() { archive.Abort(); }
    } const ending{*this};
    if (file_ == NULL || mode_ & bNoFlushOnDelete || failed_)
        return;
    if (IsStoring()) {
        Close();
        return;
    }
    try {
        Close();
    } catch (CException* e) { // All was read, and the file may be closed already.
        e->Delete();
    }
}

BOOL CArchive::IsLoading() const
{
    return (mode_ & load) != 0;
}

BOOL CArchive::IsStoring() const
{
    return (mode_ & load) == 0;
}

BOOL CArchive::IsBufferEmpty() const
{
    return IsLoading() ? current_ == end_ : current_ == buffer_;
}

CFile* CArchive::GetFile() const
{
    return file_;
}

UINT CArchive::GetObjectSchema()
{
    return std::exchange(schema_, static_cast<UINT>(-1));
}

void CArchive::SetObjectSchema(UINT nSchema)
{
    schema_ = nSchema;
}

UINT CArchive::Read(void* lpBuf, UINT nMax)
{
    Require(load);
    if (nMax == 0)
        return 0;
    if (lpBuf == NULL)
        AfxThrowInvalidArgException();
    BYTE* to = static_cast<BYTE*>(lpBuf);
    UINT left = nMax;
    while (left > 0) {
        UINT got;
        if (current_ == end_ && left >= size_) { // No use in taking it through the buffer.
            got = file_->Read(to, left);
            if (got == 0)
                break;
        } else {
            if (current_ == end_ && !Fill())
                break;
            got = min(left, static_cast<UINT>(end_ - current_));
            memcpy(to, current_, got);
            current_ += got;
        }
        to += got;
        left -= got;
    }
    return nMax - left;
}

void CArchive::Write(const void* lpBuf, INT nMax)
{
    Require(store);
    if (nMax == 0)
        return;
    if (lpBuf == NULL || nMax < 0)
        AfxThrowInvalidArgException();
    const BYTE* from = static_cast<const BYTE*>(lpBuf);
    UINT left = static_cast<UINT>(nMax);
    while (left > 0) {
        if (current_ == end_)
            WriteBuffer();
        const UINT part = min(left, static_cast<UINT>(end_ - current_));
        memcpy(current_, from, part);
        current_ += part;
        from += part;
        left -= part;
    }
}

void CArchive::Flush()
{
    if (file_ == NULL)
        Fail(CArchiveException::generic);
    if (IsStoring()) {
        WriteBuffer();
    } else if (current_ != end_) {
        file_->Seek(current_ - end_, CFile::current);
        current_ = end_;
    }
}

void CArchive::Close()
{
    if (file_ == NULL)
        return;
    if (IsStoring())
        WriteBuffer();
    else
        Flush();
    Abort();
}

void CArchive::Abort()
{
    file_ = NULL;
    Discard();
}

void CArchive::WriteString(LPCTSTR lpsz)
{
    if (lpsz == NULL)
        AfxThrowInvalidArgException();
    Write(lpsz, static_cast<INT>(_tcslen(lpsz) * sizeof(TCHAR)));
}

LPTSTR CArchive::ReadString(LPTSTR lpsz, UINT nMax)
{
    if (lpsz == NULL || nMax == 0)
        AfxThrowInvalidArgException();
    UINT length = 0;
    TCHAR character = '\0';
    bool any = false;
    while (length + 1 < nMax && Read(&character, sizeof(character)) == sizeof(character)) {
        any = true;
        if (character == '\n')
            break;
        lpsz[length++] = character;
    }
    if (length > 0 && character == '\n' && lpsz[length - 1] == '\r')
        --length;
    lpsz[length] = '\0';
    return any || nMax == 1 ? lpsz : NULL;
}

BOOL CArchive::ReadString(CString& rString)
{
    CString line;
    TCHAR part[256];
    TCHAR character = '\0';
    UINT length = 0;
    bool any = false;
    while (character != '\n' && Read(&character, sizeof(character)) == sizeof(character)) {
        any = true;
        if (length == _countof(part)) {
            line.Append(part, _countof(part));
            length = 0;
        }
        if (character != '\n')
            part[length++] = character;
    }
    line.Append(part, static_cast<int>(length));
    if (character == '\n' && !line.IsEmpty() && line[line.GetLength() - 1] == '\r')
        line.Truncate(line.GetLength() - 1);
    rString = line;
    return any;
}

/// For a value that has to be there to its last byte.
void CArchive::ReadWhole(void* buffer, UINT count)
{
    if (Read(buffer, count) != count)
        Fail(CArchiveException::endOfFile);
}

void CArchive::Fail(int cause) const
{
    AfxThrowArchiveException(cause, file_ == NULL ? CString() : file_->GetFilePath());
}

/// The archive has to be open, and in that mode.
void CArchive::Require(UINT mode) const
{
    if (file_ == NULL)
        Fail(CArchiveException::generic);
    if ((mode_ & load) != mode)
        Fail(mode == load ? CArchiveException::writeOnly : CArchiveException::readOnly);
}

/// Reads the next bytes into the empty buffer; false at the end of the file.
bool CArchive::Fill()
{
    current_ = end_ = buffer_;
    end_ += file_->Read(buffer_, size_);
    return current_ != end_;
}

void CArchive::WriteBuffer()
{
    const UINT count = static_cast<UINT>(current_ - buffer_);
    if (count == 0)
        return;
    failed_ = true; // Unless the file returns.
    file_->Write(buffer_, count);
    failed_ = false;
    current_ = buffer_;
}

void CArchive::Discard()
{
    if (ownsBuffer_)
        free(buffer_);
    buffer_ = current_ = end_ = NULL;
    delete std::exchange(objects_, nullptr);
}

CArchive& AFXAPI operator<<(CArchive& ar, SIZE size)
{
    return ar << size.cx << size.cy;
}

CArchive& AFXAPI operator<<(CArchive& ar, POINT point)
{
    return ar << point.x << point.y;
}

CArchive& AFXAPI operator<<(CArchive& ar, const RECT& rect)
{
    return ar << rect.left << rect.top << rect.right << rect.bottom;
}

CArchive& AFXAPI operator<<(CArchive& ar, CTime time)
{
    return time.Serialize64(ar);
}

CArchive& AFXAPI operator<<(CArchive& ar, CTimeSpan timeSpan)
{
    return timeSpan.Serialize64(ar);
}

CArchive& AFXAPI operator>>(CArchive& ar, SIZE& size)
{
    SIZE read;
    ar >> read.cx >> read.cy;
    size = read;
    return ar;
}

CArchive& AFXAPI operator>>(CArchive& ar, POINT& point)
{
    POINT read;
    ar >> read.x >> read.y;
    point = read;
    return ar;
}

CArchive& AFXAPI operator>>(CArchive& ar, RECT& rect)
{
    RECT read;
    ar >> read.left >> read.top >> read.right >> read.bottom;
    rect = read;
    return ar;
}

CArchive& AFXAPI operator>>(CArchive& ar, CTime& rtime)
{
    return rtime.Serialize64(ar);
}

CArchive& AFXAPI operator>>(CArchive& ar, CTimeSpan& rtimeSpan)
{
    return rtimeSpan.Serialize64(ar);
}
