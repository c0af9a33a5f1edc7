#include <classes/CRuntimeClass.h>

#include <classes/CObject.h>

#include "application/ModuleState.h"

namespace {

AFX_CLASSINIT* firstRegistration = NULL; // Guarded by the module's lock.

} // namespace

CObject* CRuntimeClass::CreateObject()
{
    return m_pfnCreateObject == NULL ? NULL : m_pfnCreateObject();
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const
{
    const CRuntimeClass* candidate = this;
    while (candidate != NULL && candidate != pBaseClass)
        candidate = candidate->m_pfnGetBaseClass();
    return candidate != NULL;
}

CRuntimeClass* CRuntimeClass::FromName(LPCSTR lpszClassName)
{
    if (lpszClassName == NULL)
        return NULL;
    const afxint::ScopedLock lock(afxint::Module().lock);
    for (const auto* entry = firstRegistration; entry != NULL; entry = entry->next_) {
        if (strcmp(entry->class_->m_lpszClassName, lpszClassName) == 0)
            return entry->class_;
    }
    return NULL;
}

CRuntimeClass* CRuntimeClass::FromName(LPCWSTR lpszClassName)
{
    char name[256];
    if (lpszClassName == NULL ||
        WideCharToMultiByte(CP_ACP, 0, lpszClassName, -1, name, sizeof(name), NULL, NULL) == 0)
        return NULL;
    return FromName(name);
}

CObject* CRuntimeClass::CreateObject(LPCSTR lpszClassName)
{
    CRuntimeClass* named = FromName(lpszClassName);
    return named == NULL ? NULL : named->CreateObject();
}

CObject* CRuntimeClass::CreateObject(LPCWSTR lpszClassName)
{
    CRuntimeClass* named = FromName(lpszClassName);
    return named == NULL ? NULL : named->CreateObject();
}

AFX_CLASSINIT::AFX_CLASSINIT(CRuntimeClass* pNewClass) : class_(pNewClass)
{
    const afxint::ScopedLock lock(afxint::Module().lock);
    next_ = firstRegistration;
    firstRegistration = this;
}

AFX_CLASSINIT::~AFX_CLASSINIT()
{
    const afxint::ScopedLock lock(afxint::Module().lock);
    AFX_CLASSINIT** link = &firstRegistration;
    while (*link != NULL && *link != this)
        link = &(*link)->next_;
    if (*link == this)
        *link = next_;
}
