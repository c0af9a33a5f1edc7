#include <classes/CObject.h>

#include <classes/Application.h>
#include <classes/CDumpContext.h>
#include <classes/CException.h>

#include <new>

CRuntimeClass CObject::classCObject = {"CObject", static_cast<int>(sizeof(CObject)), 0xFFFF, NULL,
                                       []() -> CRuntimeClass* { return NULL; }};

CRuntimeClass* CObject::GetRuntimeClass() const
{
    return RUNTIME_CLASS(CObject);
}

BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const
{
    return GetRuntimeClass()->IsDerivedFrom(pClass);
}

BOOL CObject::IsSerializable() const
{
    return GetRuntimeClass()->m_wSchema != 0xFFFF;
}

void CObject::Serialize(CArchive&)
{
}

void CObject::AssertValid() const
{
}

void CObject::Dump(CDumpContext& dc) const
{
    dc << "a " << GetRuntimeClass()->m_lpszClassName << " at " << static_cast<const void*>(this)
       << "\n";
}

void* CObject::operator new(size_t nSize)
{
    void* p = ::operator new(nSize, std::nothrow);
    if (p == NULL)
        AfxThrowMemoryException();
    return p;
}

void* CObject::operator new(size_t, void* p)
{
    return p;
}

void* CObject::operator new(size_t nSize, LPCSTR, int)
{
    return CObject::operator new(nSize);
}

void CObject::operator delete(void* p)
{
    ::operator delete(p);
}

void CObject::operator delete(void*, void*)
{
}

void CObject::operator delete(void* p, LPCSTR, int)
{
    ::operator delete(p);
}

CObject* AFXAPI AfxDynamicDownCast(const CRuntimeClass* pClass, const CObject* pObject)
{
    if (pObject == NULL || !pObject->IsKindOf(pClass))
        return NULL;
    return const_cast<CObject*>(pObject);
}

CObject* AFXAPI AfxStaticDownCast([[maybe_unused]] const CRuntimeClass* pClass,
                                  const CObject* pObject)
{
    ASSERT(pObject == NULL || pObject->IsKindOf(pClass));
    return const_cast<CObject*>(pObject);
}

void AFXAPI AfxAssertValidObject(const CObject* pOb, LPCSTR lpszFileName, int nLine)
{
    // An object begins with the address of its virtual functions.
    const bool isObject =
        AfxIsValidAddress(pOb, sizeof(CObject), FALSE) &&
        AfxIsValidAddress(*reinterpret_cast<void* const*>(pOb), sizeof(void*), FALSE);
    if (isObject)
        pOb->AssertValid();
    else if (AfxAssertFailedLine(lpszFileName, nLine))
        AfxDebugBreak();
}
