#include <afx.h>

#include <doctest/doctest.h>

#include "tests/mfc/Throws.h"

#include <errno.h>

#include <tuple>

namespace {

CString MessageOf(const CFileException& error, UINT room = 512)
{
    CString text;
    CHECK(error.GetErrorMessage(text.GetBuffer(static_cast<int>(room)), room));
    text.ReleaseBuffer();
    return text;
}

} // namespace

TEST_CASE("a fresh file exception has no cause, no error and no file")
{
    CFileException bare;
    CHECK(bare.m_cause == CFileException::none);
    CHECK(bare.m_lOsError == -1);
    CHECK(bare.m_strFileName.IsEmpty());
    CHECK(bare.IsKindOf(RUNTIME_CLASS(CException)));
    CHECK(CFileException::generic == CFileException::genericException);
}

TEST_CASE("each error of the system stands for a cause")
{
    const auto cause = CFileException::OsErrorToException;
    CHECK(cause(ERROR_SUCCESS) == CFileException::none);
    CHECK(cause(ERROR_FILE_NOT_FOUND) == CFileException::fileNotFound);
    CHECK(cause(ERROR_PATH_NOT_FOUND) == CFileException::badPath);
    CHECK(cause(ERROR_INVALID_NAME) == CFileException::badPath);
    CHECK(cause(ERROR_TOO_MANY_OPEN_FILES) == CFileException::tooManyOpenFiles);
    CHECK(cause(ERROR_ACCESS_DENIED) == CFileException::accessDenied);
    CHECK(cause(ERROR_FILE_EXISTS) == CFileException::accessDenied);
    CHECK(cause(ERROR_INVALID_HANDLE) == CFileException::invalidFile);
    CHECK(cause(ERROR_CURRENT_DIRECTORY) == CFileException::removeCurrentDir);
    CHECK(cause(ERROR_NO_MORE_FILES) == CFileException::directoryFull);
    CHECK(cause(ERROR_NEGATIVE_SEEK) == CFileException::badSeek);
    CHECK(cause(ERROR_NOT_READY) == CFileException::hardIO);
    CHECK(cause(ERROR_SHARING_VIOLATION) == CFileException::sharingViolation);
    CHECK(cause(ERROR_LOCK_VIOLATION) == CFileException::lockViolation);
    CHECK(cause(ERROR_DISK_FULL) == CFileException::diskFull);
    CHECK(cause(ERROR_HANDLE_EOF) == CFileException::endOfFile);
    CHECK(cause(123456) == CFileException::genericException);
}

TEST_CASE("each error of the C library stands for a cause")
{
    const auto cause = CFileException::ErrnoToException;
    CHECK(cause(0) == CFileException::none);
    CHECK(cause(ENOENT) == CFileException::fileNotFound);
    CHECK(cause(EMFILE) == CFileException::tooManyOpenFiles);
    CHECK(cause(EACCES) == CFileException::accessDenied);
    CHECK(cause(EBADF) == CFileException::invalidFile);
    CHECK(cause(ENAMETOOLONG) == CFileException::badPath);
    CHECK(cause(EDEADLOCK) == CFileException::sharingViolation);
    CHECK(cause(ENOSPC) == CFileException::diskFull);
    CHECK(cause(EIO) == CFileException::hardIO);
    CHECK(cause(EDOM) == CFileException::genericException);
}

TEST_CASE("errors are thrown as their cause, success is not")
{
    CHECK(CauseOf([] { CFileException::ThrowOsError(ERROR_DISK_FULL); }) ==
          CFileException::diskFull);
    CHECK(CauseOf([] { CFileException::ThrowErrno(ENOSPC); }) == CFileException::diskFull);
    CHECK_FALSE(Throws<CFileException>([] { CFileException::ThrowOsError(ERROR_SUCCESS); }));
    CHECK_FALSE(Throws<CFileException>([] { CFileException::ThrowErrno(0); }));
}

TEST_CASE("a thrown file exception carries the error and the file")
{
    const auto caught = [](auto action) {
        CFileException copy;
        try {
            action();
        } catch (CFileException* error) {
            copy.m_cause = error->m_cause;
            copy.m_lOsError = error->m_lOsError;
            copy.m_strFileName = error->m_strFileName;
            error->Delete();
        }
        return std::tuple(copy.m_cause, copy.m_lOsError, copy.m_strFileName);
    };
    CHECK(caught([] { AfxThrowFileException(CFileException::badSeek, ERROR_SEEK, _T("a.txt")); }) ==
          std::tuple(int(CFileException::badSeek), LONG(ERROR_SEEK), CString("a.txt")));
    CHECK(caught([] { CFileException::ThrowOsError(ERROR_LOCK_VIOLATION, _T("b.txt")); }) ==
          std::tuple(int(CFileException::lockViolation), LONG(ERROR_LOCK_VIOLATION),
                     CString("b.txt")));
    CHECK(caught([] { CFileException::ThrowErrno(EBADF, _T("c.txt")); }) ==
          std::tuple(int(CFileException::invalidFile), LONG(-1), CString("c.txt")));
}

TEST_CASE("a file exception names the file and the system's reason")
{
    const CFileException error(CFileException::fileNotFound, ERROR_FILE_NOT_FOUND, _T("the file"));
    const CString text = MessageOf(error);
    CHECK(text.Find(_T("the file: ")) == 0);
    CHECK(text.GetLength() > 12);
    CHECK(text.Right(1) != "\n");
    CHECK(text.Find(_T("file error")) < 0);
}

TEST_CASE("without a reason of the system the cause is named by its number")
{
    CFileException error(CFileException::diskFull);
    CHECK(MessageOf(error) == "file error 13");
    UINT context = 7;
    TCHAR text[32] = _T("");
    CHECK(error.GetErrorMessage(text, 32, &context));
    CHECK(context == 0);
}

TEST_CASE("a message that is too long is cut, and one without room is refused")
{
    const CFileException error(CFileException::fileNotFound, ERROR_FILE_NOT_FOUND, _T("the file"));
    CHECK(MessageOf(error, 5) == "the ");
    CHECK_FALSE(error.GetErrorMessage(NULL, 0));
}
