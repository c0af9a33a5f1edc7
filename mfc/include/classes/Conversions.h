// Conversions between narrow and wide strings: the classes CA2W, CW2A, CT2A and their kin, and the
// older macros that need USES_CONVERSION.
//
// Letters of the names: A narrow, W wide, T the character of this build, OLE wide, C a
// constant result. NULL converts to NULL. Failed allocation throws CMemoryException.
#pragma once

#include <classes/Platform.h>

/// Converts text into the buffer when it fits, else into new memory, which AfxReleaseConverted
/// frees.
AFX_EXPORTED LPWSTR AfxWiden(LPCSTR text, UINT codePage, LPWSTR buffer, int bufferLength);
AFX_EXPORTED LPSTR AfxNarrow(LPCWSTR text, UINT codePage, LPSTR buffer, int bufferLength);
AFX_EXPORTED LPSTR AfxCopyText(LPCSTR text, LPSTR buffer, int bufferLength);
AFX_EXPORTED LPWSTR AfxCopyText(LPCWSTR text, LPWSTR buffer, int bufferLength);
AFX_EXPORTED void AfxReleaseConverted(void* converted, const void* buffer);

/// What USES_CONVERSION declares: the memory of the conversions in one function call, freed when
/// the function returns.
class AFX_EXPORTED AFX_CONVERSIONS
{
public:
    AFX_CONVERSIONS() = default;
    AFX_CONVERSIONS(const AFX_CONVERSIONS&) = delete;
    AFX_CONVERSIONS& operator=(const AFX_CONVERSIONS&) = delete;
    ~AFX_CONVERSIONS();

    LPWSTR Widen(LPCSTR text);
    LPSTR Narrow(LPCWSTR text);

private:
    struct Block;
    void* Allocate(size_t bytes);

    Block* newest_ = NULL;
};

namespace afxint {

inline LPSTR NotConst(LPCSTR text)
{
    return const_cast<LPSTR>(text);
}

inline LPWSTR NotConst(LPCWSTR text)
{
    return const_cast<LPWSTR>(text);
}

} // namespace afxint

/// A wide copy of narrow text, alive as long as the object.
template <int t_nBufferLength = 128>
class CA2WEX
{
public:
    CA2WEX(LPCSTR psz) : CA2WEX(psz, CP_ACP) {}
    CA2WEX(LPCSTR psz, UINT nCodePage)
        : m_psz(AfxWiden(psz, nCodePage, m_szBuffer, t_nBufferLength))
    {
    }
    CA2WEX(const CA2WEX&) = delete;
    CA2WEX& operator=(const CA2WEX&) = delete;
    ~CA2WEX() { AfxReleaseConverted(m_psz, m_szBuffer); }

    operator LPWSTR() const { return m_psz; }

    LPWSTR m_psz;
    wchar_t m_szBuffer[t_nBufferLength];
};

/// A narrow copy of wide text.
template <int t_nBufferLength = 128>
class CW2AEX
{
public:
    CW2AEX(LPCWSTR psz) : CW2AEX(psz, CP_ACP) {}
    CW2AEX(LPCWSTR psz, UINT nCodePage)
        : m_psz(AfxNarrow(psz, nCodePage, m_szBuffer, t_nBufferLength))
    {
    }
    CW2AEX(const CW2AEX&) = delete;
    CW2AEX& operator=(const CW2AEX&) = delete;
    ~CW2AEX() { AfxReleaseConverted(m_psz, m_szBuffer); }

    operator LPSTR() const { return m_psz; }

    LPSTR m_psz;
    char m_szBuffer[t_nBufferLength];
};

/// A writable copy of narrow text.
template <int t_nBufferLength = 128>
class CA2AEX
{
public:
    CA2AEX(LPCSTR psz) : m_psz(AfxCopyText(psz, m_szBuffer, t_nBufferLength)) {}
    CA2AEX(LPCSTR psz, UINT /*nCodePage*/) : CA2AEX(psz) {}
    CA2AEX(const CA2AEX&) = delete;
    CA2AEX& operator=(const CA2AEX&) = delete;
    ~CA2AEX() { AfxReleaseConverted(m_psz, m_szBuffer); }

    operator LPSTR() const { return m_psz; }

    LPSTR m_psz;
    char m_szBuffer[t_nBufferLength];
};

/// A writable copy of wide text.
template <int t_nBufferLength = 128>
class CW2WEX
{
public:
    CW2WEX(LPCWSTR psz) : m_psz(AfxCopyText(psz, m_szBuffer, t_nBufferLength)) {}
    CW2WEX(LPCWSTR psz, UINT /*nCodePage*/) : CW2WEX(psz) {}
    CW2WEX(const CW2WEX&) = delete;
    CW2WEX& operator=(const CW2WEX&) = delete;
    ~CW2WEX() { AfxReleaseConverted(m_psz, m_szBuffer); }

    operator LPWSTR() const { return m_psz; }

    LPWSTR m_psz;
    wchar_t m_szBuffer[t_nBufferLength];
};

/// Constant narrow text that needs no conversion; it is not copied.
class CA2CA
{
public:
    CA2CA(LPCSTR psz) : m_psz(psz) {}
    CA2CA(LPCSTR psz, UINT /*nCodePage*/) : m_psz(psz) {}
    CA2CA(const CA2CA&) = delete;
    CA2CA& operator=(const CA2CA&) = delete;

    operator LPCSTR() const { return m_psz; }

    LPCSTR m_psz;
};

/// Constant wide text that needs no conversion; it is not copied.
class CW2CW
{
public:
    CW2CW(LPCWSTR psz) : m_psz(psz) {}
    CW2CW(LPCWSTR psz, UINT /*nCodePage*/) : m_psz(psz) {}
    CW2CW(const CW2CW&) = delete;
    CW2CW& operator=(const CW2CW&) = delete;

    operator LPCWSTR() const { return m_psz; }

    LPCWSTR m_psz;
};

using CA2W = CA2WEX<>;
using CW2A = CW2AEX<>;
using CA2A = CA2AEX<>;
using CW2W = CW2WEX<>;

#define CA2CWEX CA2WEX
#define CW2CAEX CW2AEX
#define CA2CW CA2W
#define CW2CA CW2A

#ifdef _UNICODE
#define CA2TEX CA2WEX
#define CA2CTEX CA2WEX
#define CT2AEX CW2AEX
#define CT2CAEX CW2AEX
#define CW2TEX CW2WEX
#define CW2CTEX CW2WEX
#define CT2WEX CW2WEX
#define CT2CWEX CW2WEX
#define CA2T CA2W
#define CA2CT CA2W
#define CT2A CW2A
#define CT2CA CW2A
#define CW2T CW2W
#define CW2CT CW2CW
#define CT2W CW2W
#define CT2CW CW2CW
#else
#define CA2TEX CA2AEX
#define CA2CTEX CA2AEX
#define CT2AEX CA2AEX
#define CT2CAEX CA2AEX
#define CW2TEX CW2AEX
#define CW2CTEX CW2AEX
#define CT2WEX CA2WEX
#define CT2CWEX CA2WEX
#define CA2T CA2A
#define CA2CT CA2CA
#define CT2A CA2A
#define CT2CA CA2CA
#define CW2T CW2A
#define CW2CT CW2A
#define CT2W CA2W
#define CT2CW CA2W
#endif
#define COLE2T CW2T
#define COLE2CT CW2CT
#define CT2OLE CT2W
#define CT2COLE CT2CW

#define USES_CONVERSION [[maybe_unused]] ::AFX_CONVERSIONS afxConversions

#define A2W(lpa) (afxConversions.Widen(lpa))
#define W2A(lpw) (afxConversions.Narrow(lpw))
#define A2CW(lpa) (static_cast<LPCWSTR>(A2W(lpa)))
#define W2CA(lpw) (static_cast<LPCSTR>(W2A(lpw)))
#ifdef _UNICODE
#define T2A(lp) W2A(lp)
#define A2T(lp) A2W(lp)
#define T2CA(lp) W2CA(lp)
#define A2CT(lp) A2CW(lp)
#define T2W(lp) (::afxint::NotConst(lp))
#define W2T(lp) (::afxint::NotConst(lp))
#define T2CW(lp) (static_cast<LPCWSTR>(lp))
#define W2CT(lp) (static_cast<LPCWSTR>(lp))
#else
#define T2A(lp) (::afxint::NotConst(lp))
#define A2T(lp) (::afxint::NotConst(lp))
#define T2CA(lp) (static_cast<LPCSTR>(lp))
#define A2CT(lp) (static_cast<LPCSTR>(lp))
#define T2W(lp) A2W(lp)
#define W2T(lp) W2A(lp)
#define T2CW(lp) A2CW(lp)
#define W2CT(lp) W2CA(lp)
#endif
#define T2OLE(lp) T2W(lp)
#define OLE2T(lp) W2T(lp)
#define T2COLE(lp) T2CW(lp)
#define OLE2CT(lp) W2CT(lp)
#define A2OLE(lp) A2W(lp)
#define OLE2A(lp) W2A(lp)
#define A2COLE(lp) A2CW(lp)
#define OLE2CA(lp) W2CA(lp)
#define W2OLE(lp) (::afxint::NotConst(lp))
#define OLE2W(lp) (::afxint::NotConst(lp))
#define W2COLE(lp) (static_cast<LPCWSTR>(lp))
#define OLE2CW(lp) (static_cast<LPCWSTR>(lp))

/// The caller frees the results with SysFreeString.
AFX_EXPORTED BSTR A2BSTR(LPCSTR lp);
AFX_EXPORTED BSTR W2BSTR(LPCWSTR lp);
#ifdef _UNICODE
#define T2BSTR W2BSTR
#else
#define T2BSTR A2BSTR
#endif
#define OLE2BSTR W2BSTR
