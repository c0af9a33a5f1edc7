// The exceptions of the class library. They are thrown as pointers; whoever catches one calls
// Delete, which the CATCH macros do by themselves.
#pragma once

#include <classes/CObject.h>

[[noreturn]] AFX_EXPORTED void AFXAPI AfxThrowMemoryException();
[[noreturn]] AFX_EXPORTED void AFXAPI AfxThrowNotSupportedException();
[[noreturn]] AFX_EXPORTED void AFXAPI AfxThrowResourceException();
[[noreturn]] AFX_EXPORTED void AFXAPI AfxThrowUserException();
[[noreturn]] AFX_EXPORTED void AFXAPI AfxThrowInvalidArgException();

/// The base of all exceptions of the class library.
class AFX_EXPORTED CException : public CObject
{
    DECLARE_DYNAMIC(CException)

public:
    /// An exception made with new deletes itself in Delete; one in static memory does not.
    explicit CException(BOOL bAutoDelete = TRUE);

    void Delete();
    /// Copies the text that explains the exception; FALSE, and an empty text, when there is none.
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError,
                                 PUINT pnHelpContext = NULL) const;
    /// Shows the text of the exception, else string nMessageID, and returns the button.
    virtual int ReportError(UINT nType = MB_OK, UINT nMessageID = 0);

private:
    BOOL m_bAutoDelete;
};

/// An exception whose text is one of the library's own strings.
class AFX_EXPORTED CSimpleException : public CException
{
    DECLARE_DYNAMIC(CSimpleException)

public:
    CSimpleException();
    explicit CSimpleException(BOOL bAutoDelete);
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError,
                         PUINT pnHelpContext = NULL) const override;

private:
    friend class CMemoryException;
    friend class CNotSupportedException;
    friend class CResourceException;
    friend class CInvalidArgException;
    CSimpleException(BOOL bAutoDelete, UINT nMessageID);

    UINT messageId_; ///< 0 for none.
};

/// Memory has run out.
class AFX_EXPORTED CMemoryException : public CSimpleException
{
    DECLARE_DYNAMIC(CMemoryException)

public:
    CMemoryException();

private:
    friend AFX_EXPORTED void AFXAPI AfxThrowMemoryException();
    explicit CMemoryException(BOOL bAutoDelete);
};

/// What was asked for is not possible.
class AFX_EXPORTED CNotSupportedException : public CSimpleException
{
    DECLARE_DYNAMIC(CNotSupportedException)

public:
    CNotSupportedException();
};

/// A resource could not be found or made.
class AFX_EXPORTED CResourceException : public CSimpleException
{
    DECLARE_DYNAMIC(CResourceException)

public:
    CResourceException();
};

/// The user was told already; the operation just ends.
class AFX_EXPORTED CUserException : public CSimpleException
{
    DECLARE_DYNAMIC(CUserException)

public:
    CUserException();
};

/// A function was called with a wrong argument.
class AFX_EXPORTED CInvalidArgException : public CSimpleException
{
    DECLARE_DYNAMIC(CInvalidArgException)

public:
    CInvalidArgException();
};

namespace afxint {

/// Deletes a caught exception at the end of the CATCH block, unless it is thrown on.
class CaughtException
{
public:
    explicit CaughtException(CException* exception) : exception_(exception) {}
    ~CaughtException()
    {
        if (exception_ != NULL)
            exception_->Delete();
    }
    CaughtException(const CaughtException&) = delete;
    CaughtException& operator=(const CaughtException&) = delete;
    void Release() { exception_ = NULL; }

private:
    CException* exception_;
};

} // namespace afxint

#define TRY                                                                                        \
    {                                                                                              \
        try {
#define CATCH(exception_class, exception)                                                          \
    }                                                                                              \
    catch (exception_class * exception)                                                            \
    {                                                                                              \
        afxint::CaughtException afxintCaught(exception);
#define AND_CATCH(exception_class, exception) CATCH(exception_class, exception)
#define CATCH_ALL(exception) CATCH(CException, exception)
#define AND_CATCH_ALL(exception) CATCH(CException, exception)
#define END_CATCH                                                                                  \
    }                                                                                              \
    }
#define END_CATCH_ALL END_CATCH
#define END_TRY                                                                                    \
    }                                                                                              \
    catch (CException * afxintUnwanted)                                                            \
    {                                                                                              \
        afxintUnwanted->Delete();                                                                  \
    }                                                                                              \
    }
#define THROW(exception) throw exception
// A bare throw works only in the module that caught, so this cannot be a function of the library.
#define THROW_LAST()                                                                               \
    do {                                                                                           \
        afxintCaught.Release();                                                                    \
        throw;                                                                                     \
    } while (false)

#define ENSURE_THROW(condition, throwing)                                                          \
    do {                                                                                           \
        if (!(condition)) {                                                                        \
            throwing;                                                                              \
        }                                                                                          \
    } while (false)
#define ENSURE(condition) ENSURE_THROW(condition, ::AfxThrowInvalidArgException())
#define ENSURE_ARG(condition) ENSURE(condition)
