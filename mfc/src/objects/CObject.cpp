#include <classes/CObject.h>

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

void CObject::Dump(CDumpContext&) const
{
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

namespace afxint {

CObject* CastDown(const CRuntimeClass* runtimeClass, const CObject* object)
{
    if (object == NULL || !object->IsKindOf(runtimeClass))
        return NULL;
    return const_cast<CObject*>(object);
}

CObject* CastDownChecked([[maybe_unused]] const CRuntimeClass* runtimeClass, const CObject* object)
{
    ASSERT(object == NULL || object->IsKindOf(runtimeClass));
    return const_cast<CObject*>(object);
}

} // namespace afxint
