// A device context of its own: the handle, its origin and its end, what the device can do.
#include <afxwin.h>

#include "graphics/BothContexts.h"
#include "objects/OwnedHandle.h"

IMPLEMENT_DYNCREATE(CDC, CObject)

using afxint::CurrentThread;
using afxint::OnBoth;

CDC* afxint::DcTraits::Wrap(HDC handle)
{
    CDC* dc = new CDC;
    dc->m_hDC = dc->m_hAttribDC = handle;
    return dc;
}

void afxint::DcTraits::Unwrap(CDC* dc)
{
    dc->m_hDC = dc->m_hAttribDC = NULL;
    delete dc;
}

CDC::CDC() : m_hDC(NULL), m_hAttribDC(NULL)
{
}

CDC::~CDC()
{
    DeleteDC();
}

void CDC::AssertValid() const
{
    CObject::AssertValid();
    ASSERT(m_hDC == NULL || ::GetObjectType(m_hDC) != 0);
}

void CDC::Dump(CDumpContext& dc) const
{
    CObject::Dump(dc);
    dc << "with contexts " << m_hDC << " and " << m_hAttribDC << "\n";
}

CDC::operator HDC() const
{
    return GetSafeHdc();
}

HDC CDC::GetSafeHdc() const
{
    return this == NULL ? NULL : m_hDC;
}

CWnd* CDC::GetWindow() const
{
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

CDC* PASCAL CDC::FromHandle(HDC hDC)
{
    CDC* dc = CurrentThread().dcs.FindOrWrap(hDC);
    // A temporary object may have been emptied by Detach, and its handle be in use again.
    if (dc != NULL && dc->m_hDC == NULL)
        dc->m_hDC = dc->m_hAttribDC = hDC;
    return dc;
}

void PASCAL CDC::DeleteTempMap()
{
    CurrentThread().dcs.DropTemporaries(afxint::DepthOfIdleTime());
}

BOOL CDC::Attach(HDC hDC)
{
    if (!afxint::TakeHandle(CurrentThread().dcs, hDC, this, m_hDC))
        return FALSE;
    SetAttribDC(hDC);
    return TRUE;
}

HDC CDC::Detach()
{
    ReleaseAttribDC();
    return afxint::GiveHandle(CurrentThread().dcs, this, m_hDC);
}

void CDC::SetAttribDC(HDC hDC)
{
    m_hAttribDC = hDC;
}

void CDC::SetOutputDC(HDC hDC)
{
    m_hDC = hDC;
}

void CDC::ReleaseAttribDC()
{
    m_hAttribDC = NULL;
}

void CDC::ReleaseOutputDC()
{
    m_hDC = NULL;
}

BOOL CDC::IsPrinting() const
{
    if (m_hAttribDC == NULL)
        return FALSE;
    const int technology = GetDeviceCaps(TECHNOLOGY);
    return technology == DT_RASPRINTER || technology == DT_PLOTTER;
}

BOOL CDC::CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput,
                   const void* lpInitData)
{
    return Attach(::CreateDC(lpszDriverName, lpszDeviceName, lpszOutput,
                             static_cast<const DEVMODE*>(lpInitData)));
}

BOOL CDC::CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput,
                   const void* lpInitData)
{
    return Attach(::CreateIC(lpszDriverName, lpszDeviceName, lpszOutput,
                             static_cast<const DEVMODE*>(lpInitData)));
}

BOOL CDC::CreateCompatibleDC(CDC* pDC)
{
    return Attach(::CreateCompatibleDC(pDC->GetSafeHdc()));
}

BOOL CDC::DeleteDC()
{
    if (m_hDC == NULL)
        return FALSE;
    return ::DeleteDC(Detach());
}

BOOL CDC::ResetDC(const DEVMODE* lpDevMode)
{
    return OnBoth(*this, [=](HDC dc) { return ::ResetDC(dc, lpDevMode); }) != NULL;
}

int CDC::SaveDC()
{
    return OnBoth(*this, [](HDC dc) { return ::SaveDC(dc); });
}

BOOL CDC::RestoreDC(int nSavedDC)
{
    return OnBoth(*this, [=](HDC dc) { return ::RestoreDC(dc, nSavedDC); });
}

int CDC::GetDeviceCaps(int nIndex) const
{
    return ::GetDeviceCaps(m_hAttribDC, nIndex);
}

UINT CDC::SetBoundsRect(LPCRECT lpRectBounds, UINT flags)
{
    return ::SetBoundsRect(m_hDC, lpRectBounds, flags);
}

UINT CDC::GetBoundsRect(LPRECT lpRectBounds, UINT flags)
{
    return ::GetBoundsRect(m_hDC, lpRectBounds, flags);
}
