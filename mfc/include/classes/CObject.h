// The base of nearly everything in the class library.
#pragma once

#include <classes/CRuntimeClass.h>

class CArchive;
class CDumpContext;

/// An object that can tell its class at run time and that is never copied by accident.
class AFX_EXPORTED CObject
{
public:
    virtual ~CObject() = default;
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

    virtual CRuntimeClass* GetRuntimeClass() const;
    /// TRUE if the object is of that class or of one derived from it.
    BOOL IsKindOf(const CRuntimeClass* pClass) const;
    BOOL IsSerializable() const;
    virtual void Serialize(CArchive& ar);

    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;

    void* operator new(size_t nSize);
    void* operator new(size_t nSize, void* p);
    void* operator new(size_t nSize, LPCSTR lpszFileName, int nLine);
    void operator delete(void* p);
    void operator delete(void* p, void* pPlace);
    void operator delete(void* p, LPCSTR lpszFileName, int nLine);

    static CRuntimeClass classCObject;

protected:
    CObject() = default;
};

/// The object as that class if it is of that class, else NULL.
#define DYNAMIC_DOWNCAST(class_name, object)                                                       \
    (static_cast<class_name*>(::AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))

/// The object as that class; a debug build stops when it is of another.
#define STATIC_DOWNCAST(class_name, object)                                                        \
    (static_cast<class_name*>(::AfxStaticDownCast(RUNTIME_CLASS(class_name), object)))

// Allocations are not tracked, so a plain new serves.
#define DEBUG_NEW new
#ifndef THIS_FILE
#define THIS_FILE __FILE__
#endif

AFX_EXPORTED CObject* AFXAPI AfxDynamicDownCast(const CRuntimeClass* pClass,
                                                const CObject* pObject);
AFX_EXPORTED CObject* AFXAPI AfxStaticDownCast(const CRuntimeClass* pClass, const CObject* pObject);
