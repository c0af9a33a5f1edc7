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
    /// TRUE for a class with DECLARE_SERIAL.
    BOOL IsSerializable() const;
    /// Stores the object in the archive, or loads it from there. There is nothing in the base.
    virtual void Serialize(CArchive& ar);

    /// Asserts, in a debug build, what holds for every object of the class; ASSERT_VALID calls it.
    virtual void AssertValid() const;
    /// Writes the object out for a person: its class and its address, unless a class says more.
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

/// What ASSERT_VALID does: a pointer that is none counts as a failed assertion, else the object
/// looks at itself.
AFX_EXPORTED void AFXAPI AfxAssertValidObject(const CObject* pOb, LPCSTR lpszFileName, int nLine);
