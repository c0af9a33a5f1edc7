// Values and whole graphs of objects in a file.
//
// What fails throws: CArchiveException for what is wrong with the content, CFileException for what
// the file tells, CMemoryException. A value keeps what it had when its loading fails.
#pragma once

#include <classes/CArchiveException.h>
#include <classes/CFile.h>
#include <classes/CObject.h>
#include <classes/CPoint.h>
#include <classes/CRect.h>
#include <classes/CSize.h>
#include <classes/CString.h>
#include <classes/CTime.h>

class CDocument;

/// Either stores to a file or loads from it, through a buffer. The file stays the caller's.
class AFX_EXPORTED CArchive
{
public:
    enum Mode { store = 0, load = 1, bNoFlushOnDelete = 2, bNoByteSwap = 4 };

    /// lpBuf may give the room for the buffer; it stays the caller's.
    CArchive(CFile* pFile, UINT nMode, int nBufSize = 4096, void* lpBuf = NULL);
    /// Closes the archive, which throws when the rest cannot be written. After a failure of the
    /// file, and with bNoFlushOnDelete, nothing more is written.
    ~CArchive() noexcept(false);
    CArchive(const CArchive&) = delete;
    CArchive& operator=(const CArchive&) = delete;

    BOOL IsLoading() const;
    BOOL IsStoring() const;
    BOOL IsBufferEmpty() const;
    CFile* GetFile() const;
    /// The version of the object that is being loaded; -1 when it is not known, and from the second
    /// call on.
    UINT GetObjectSchema();
    void SetObjectSchema(UINT nSchema);

    CDocument* m_pDocument = NULL; ///< For the program's own use.

    /// The bytes read, fewer than wanted only at the end of the file.
    UINT Read(void* lpBuf, UINT nMax);
    void Write(const void* lpBuf, INT nMax);
    /// Writes what is in the buffer to the file; while loading, sets the file to where the archive
    /// is.
    void Flush();
    void Close();
    /// Closes the archive without writing the rest.
    void Abort();

    /// The characters alone, without their number or a terminator.
    void WriteString(LPCTSTR lpsz);
    /// Reads up to a newline, which is dropped. NULL and FALSE mean that the end was reached before
    /// any character. The first form takes at most nMax - 1 characters, and a terminator.
    LPTSTR ReadString(LPTSTR lpsz, UINT nMax);
    BOOL ReadString(CString& rString);

    /// Objects are stored once; when they come again, with a reference. NULL is stored, too.
    void WriteObject(const CObject* pOb);
    /// The caller owns the object, when it was met for the first time. An object that cannot be
    /// loaded to its end is deleted.
    CObject* ReadObject(const CRuntimeClass* pClass);
    /// Lets objects that are stored refer to this one, which is not. To be called at the same place
    /// when loading.
    void MapObject(const CObject* pOb);
    void WriteClass(const CRuntimeClass* pClassRef);
    /// The stored class. With pObTag there may be a reference to an object, too: it is put there,
    /// and the result is NULL.
    CRuntimeClass* ReadClass(const CRuntimeClass* pClassRefRequested = NULL, UINT* pSchema = NULL,
                             DWORD* pObTag = NULL);
    void SerializeClass(const CRuntimeClass* pClassRef);
    /// Accepted for compatibility: what is known about objects grows as it needs.
    void SetLoadParams(UINT nGrowBy = 1024);
    void SetStoreParams(UINT nHashSize = 2053, UINT nBlockSize = 128);

    CArchive& operator<<(BYTE by) { return Put(by); }
    CArchive& operator<<(WORD w) { return Put(w); }
    CArchive& operator<<(LONG l) { return Put(l); }
    CArchive& operator<<(DWORD dw) { return Put(dw); }
    CArchive& operator<<(float f) { return Put(f); }
    CArchive& operator<<(double d) { return Put(d); }
    CArchive& operator<<(LONGLONG dwdw) { return Put(dwdw); }
    CArchive& operator<<(ULONGLONG dwdw) { return Put(dwdw); }
    CArchive& operator<<(int i) { return Put(i); }
    CArchive& operator<<(short w) { return Put(w); }
    CArchive& operator<<(char ch) { return Put(ch); }
    CArchive& operator<<(wchar_t ch) { return Put(ch); }
    CArchive& operator<<(unsigned u) { return Put(u); }
    CArchive& operator<<(bool b) { return Put(static_cast<BYTE>(b)); }
    template <typename BaseType, class StringTraits>
    CArchive& operator<<(const CStringT<BaseType, StringTraits>& str)
    {
        PutText(str.GetString(), str.GetLength());
        return *this;
    }

    CArchive& operator>>(BYTE& by) { return Get(by); }
    CArchive& operator>>(WORD& w) { return Get(w); }
    CArchive& operator>>(LONG& l) { return Get(l); }
    CArchive& operator>>(DWORD& dw) { return Get(dw); }
    CArchive& operator>>(float& f) { return Get(f); }
    CArchive& operator>>(double& d) { return Get(d); }
    CArchive& operator>>(LONGLONG& dwdw) { return Get(dwdw); }
    CArchive& operator>>(ULONGLONG& dwdw) { return Get(dwdw); }
    CArchive& operator>>(int& i) { return Get(i); }
    CArchive& operator>>(short& w) { return Get(w); }
    CArchive& operator>>(char& ch) { return Get(ch); }
    CArchive& operator>>(wchar_t& ch) { return Get(ch); }
    CArchive& operator>>(unsigned& u) { return Get(u); }
    CArchive& operator>>(bool& b)
    {
        BYTE by = 0;
        Get(by);
        b = by != 0;
        return *this;
    }
    /// Text of either kind of characters loads as the kind that is wanted.
    template <typename BaseType, class StringTraits>
    CArchive& operator>>(CStringT<BaseType, StringTraits>& str)
    {
        GetText(str);
        return *this;
    }

private:
    struct Objects;
    class UnfinishedObject;

    template <class Value>
    CArchive& Put(const Value& value)
    {
        Write(&value, static_cast<INT>(sizeof(value)));
        return *this;
    }
    template <class Value>
    CArchive& Get(Value& value)
    {
        Value read;
        ReadWhole(&read, static_cast<UINT>(sizeof(read)));
        value = read;
        return *this;
    }
    void ReadWhole(void* buffer, UINT count);
    void PutText(const char* text, int length);
    void PutText(const wchar_t* text, int length);
    void PutTextLength(int length);
    void GetText(CStringA& text);
    void GetText(CStringW& text);
    template <class Text>
    void GetCharacters(Text& text, ULONGLONG length);
    ULONGLONG GetTextLength(bool& wide);
    [[noreturn]] void Fail(int cause) const;
    void Require(UINT mode) const;
    bool Fill();
    void WriteBuffer();
    void Discard();
    Objects& KnownObjects();
    void PutTag(DWORD tag);
    CRuntimeClass* GetNewClass(UINT& schema);
    CRuntimeClass* LookUpClass(const char* name, UINT schema) const;
    CObject* ObjectOf(DWORD tag, const CRuntimeClass* wanted);
    void RequireStack();

    CFile* file_;
    UINT mode_;
    UINT schema_ = static_cast<UINT>(-1);
    UINT size_; ///< Of the buffer, in bytes.
    BYTE* buffer_;
    BYTE* current_; ///< Where the archive reads or writes next.
    BYTE* end_;     ///< Behind what the buffer has to read, or behind the buffer.
    bool ownsBuffer_;
    bool failed_ = false; ///< The file could not be written.
    Objects* objects_ = NULL;
    const BYTE* lowestStack_ = NULL; ///< No object is loaded when the stack has come to here.
    UINT nesting_ = 0;
};

AFX_EXPORTED CArchive& AFXAPI operator<<(CArchive& ar, const CObject* pOb);
AFX_EXPORTED CArchive& AFXAPI operator>>(CArchive& ar, CObject*& pOb);
AFX_EXPORTED CArchive& AFXAPI operator>>(CArchive& ar, const CObject*& pOb);

AFX_EXPORTED CArchive& AFXAPI operator<<(CArchive& ar, SIZE size);
AFX_EXPORTED CArchive& AFXAPI operator<<(CArchive& ar, POINT point);
AFX_EXPORTED CArchive& AFXAPI operator<<(CArchive& ar, const RECT& rect);
AFX_EXPORTED CArchive& AFXAPI operator<<(CArchive& ar, CTime time);
AFX_EXPORTED CArchive& AFXAPI operator<<(CArchive& ar, CTimeSpan timeSpan);
AFX_EXPORTED CArchive& AFXAPI operator>>(CArchive& ar, SIZE& size);
AFX_EXPORTED CArchive& AFXAPI operator>>(CArchive& ar, POINT& point);
AFX_EXPORTED CArchive& AFXAPI operator>>(CArchive& ar, RECT& rect);
AFX_EXPORTED CArchive& AFXAPI operator>>(CArchive& ar, CTime& rtime);
AFX_EXPORTED CArchive& AFXAPI operator>>(CArchive& ar, CTimeSpan& rtimeSpan);
