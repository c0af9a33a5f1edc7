// What a class derived from CObject knows about itself while the program runs.
#pragma once

#include <classes/Platform.h>

class CArchive;
class CObject;

/// The name, size and base of a class, and the means to make an object of it. One static object
/// of this kind belongs to every class with DECLARE_DYNAMIC or more.
struct AFX_EXPORTED CRuntimeClass
{
    LPCSTR m_lpszClassName;
    int m_nObjectSize; ///< In bytes.
    UINT m_wSchema;    ///< Version for serialisation; 0xFFFF for a class that cannot be stored.
    CObject* (*m_pfnCreateObject)();       ///< NULL without DECLARE_DYNCREATE.
    CRuntimeClass* (*m_pfnGetBaseClass)(); ///< Gives NULL for CObject alone.

    /// A new object of the class; NULL when the class has no DECLARE_DYNCREATE.
    CObject* CreateObject();
    /// TRUE for the class itself and for everything derived from it.
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;

    /// The class of that name; NULL when no module has one.
    static CRuntimeClass* FromName(LPCSTR lpszClassName);
    static CRuntimeClass* FromName(LPCWSTR lpszClassName);
    /// A new object of the class of that name; NULL when that is not possible.
    static CObject* CreateObject(LPCSTR lpszClassName);
    static CObject* CreateObject(LPCWSTR lpszClassName);
};

/// Keeps a class findable by its name as long as the module that implements it is loaded.
class AFX_EXPORTED AFX_CLASSINIT
{
public:
    explicit AFX_CLASSINIT(CRuntimeClass* pNewClass);
    ~AFX_CLASSINIT();
    AFX_CLASSINIT(const AFX_CLASSINIT&) = delete;
    AFX_CLASSINIT& operator=(const AFX_CLASSINIT&) = delete;

private:
    friend struct CRuntimeClass;
    CRuntimeClass* class_;
    AFX_CLASSINIT* next_;
};

/// The CRuntimeClass* of a class.
#define RUNTIME_CLASS(class_name) (&class_name::class##class_name)

#define DECLARE_DYNAMIC(class_name)                                                                \
public:                                                                                            \
    static CRuntimeClass class##class_name;                                                        \
    CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name)                                                              \
    DECLARE_DYNAMIC(class_name)                                                                    \
    static CObject* CreateObject();

#define DECLARE_SERIAL(class_name)                                                                 \
    DECLARE_DYNCREATE(class_name)                                                                  \
    friend AFX_EXPORTED CArchive& AFXAPI operator>>(CArchive& ar, class_name*& pOb);

// The base class is asked for through a function because its address may lie in another module.
#define AFXINT_IMPLEMENT_CLASS(class_name, base_class_name, schema, create)                        \
    CRuntimeClass class_name::class##class_name = {                                                \
        #class_name, static_cast<int>(sizeof(class_name)), schema, create,                         \
        []() -> CRuntimeClass* { return RUNTIME_CLASS(base_class_name); }};                        \
    CRuntimeClass* class_name::GetRuntimeClass() const                                             \
    {                                                                                              \
        return RUNTIME_CLASS(class_name);                                                          \
    }                                                                                              \
    static const AFX_CLASSINIT afxintRegistration##class_name(RUNTIME_CLASS(class_name));

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                             \
    AFXINT_IMPLEMENT_CLASS(class_name, base_class_name, 0xFFFF, NULL)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                           \
    CObject* class_name::CreateObject()                                                            \
    {                                                                                              \
        return new class_name;                                                                     \
    }                                                                                              \
    AFXINT_IMPLEMENT_CLASS(class_name, base_class_name, 0xFFFF, &class_name::CreateObject)

/// Added to the schema number of IMPLEMENT_SERIAL: objects of other numbers load, too, and ask for
/// theirs with CArchive::GetObjectSchema.
#define VERSIONABLE_SCHEMA (0x80000000)

#define IMPLEMENT_SERIAL(class_name, base_class_name, wSchema)                                     \
    CObject* class_name::CreateObject()                                                            \
    {                                                                                              \
        return new class_name;                                                                     \
    }                                                                                              \
    AFXINT_IMPLEMENT_CLASS(class_name, base_class_name, wSchema, &class_name::CreateObject)        \
    CArchive& AFXAPI operator>>(CArchive& ar, class_name*& pOb)                                    \
    {                                                                                              \
        pOb = static_cast<class_name*>(ar.ReadObject(RUNTIME_CLASS(class_name)));                  \
        return ar;                                                                                 \
    }
