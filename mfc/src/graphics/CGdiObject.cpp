#include <afxwin.h>

#include "objects/OwnedHandle.h"

IMPLEMENT_DYNCREATE(CGdiObject, CObject)

using afxint::CurrentThread;

namespace {

CGdiObject* NewWrapper(HGDIOBJ handle)
{
    switch (::GetObjectType(handle)) {
    case OBJ_PEN:
    case OBJ_EXTPEN:
        return new CPen;
    case OBJ_BRUSH:
        return new CBrush;
    case OBJ_FONT:
        return new CFont;
    case OBJ_BITMAP:
        return new CBitmap;
    case OBJ_PAL:
        return new CPalette;
    case OBJ_REGION:
        return new CRgn;
    default:
        return new CGdiObject;
    }
}

} // namespace

CGdiObject* afxint::GdiObjectTraits::Wrap(HGDIOBJ handle)
{
    CGdiObject* object = NewWrapper(handle);
    object->m_hObject = handle;
    return object;
}

void afxint::GdiObjectTraits::Unwrap(CGdiObject* object)
{
    object->m_hObject = NULL;
    delete object;
}

CGdiObject::CGdiObject() : m_hObject(NULL)
{
}

CGdiObject::~CGdiObject()
{
    DeleteObject();
}

void CGdiObject::AssertValid() const
{
    CObject::AssertValid();
    ASSERT(m_hObject == NULL || ::GetObjectType(m_hObject) != 0);
}

void CGdiObject::Dump(CDumpContext& dc) const
{
    CObject::Dump(dc);
    dc << "with handle " << static_cast<const void*>(m_hObject) << "\n";
}

CGdiObject::operator HGDIOBJ() const
{
    return GetSafeHandle();
}

HGDIOBJ CGdiObject::GetSafeHandle() const
{
    return this == NULL ? NULL : m_hObject;
}

CGdiObject* PASCAL CGdiObject::FromHandle(HGDIOBJ hObject)
{
    CGdiObject* object = CurrentThread().gdiObjects.FindOrWrap(hObject);
    // A temporary object may have been emptied by DeleteObject, and its handle be in use again.
    if (object != NULL && object->m_hObject == NULL)
        object->m_hObject = hObject;
    return object;
}

void PASCAL CGdiObject::DeleteTempMap()
{
    CurrentThread().gdiObjects.DropTemporaries(afxint::DepthOfIdleTime());
}

BOOL CGdiObject::Attach(HGDIOBJ hObject)
{
    return afxint::TakeHandle(CurrentThread().gdiObjects, hObject, this, m_hObject);
}

HGDIOBJ CGdiObject::Detach()
{
    return afxint::GiveHandle(CurrentThread().gdiObjects, this, m_hObject);
}

BOOL CGdiObject::DeleteObject()
{
    if (m_hObject == NULL)
        return FALSE;
    return ::DeleteObject(Detach());
}

int CGdiObject::GetObject(int nCount, LPVOID lpObject) const
{
    return ::GetObject(m_hObject, nCount, lpObject);
}

UINT CGdiObject::GetObjectType() const
{
    return ::GetObjectType(m_hObject);
}

BOOL CGdiObject::CreateStockObject(int nIndex)
{
    return Attach(::GetStockObject(nIndex));
}

BOOL CGdiObject::UnrealizeObject()
{
    return ::UnrealizeObject(m_hObject);
}

BOOL CGdiObject::operator==(const CGdiObject& obj) const
{
    return GetSafeHandle() == obj.GetSafeHandle();
}

BOOL CGdiObject::operator!=(const CGdiObject& obj) const
{
    return GetSafeHandle() != obj.GetSafeHandle();
}
