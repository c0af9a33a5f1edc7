#include <afxwin.h>

#include <doctest/doctest.h>

#include <memory>
#include <string>

namespace {

class CFigure : public CObject
{
    DECLARE_DYNAMIC(CFigure)
};
IMPLEMENT_DYNAMIC(CFigure, CObject)

class CDisc : public CFigure
{
    DECLARE_DYNCREATE(CDisc)
public:
    int radius = 7;
};
IMPLEMENT_DYNCREATE(CDisc, CFigure)

class CSaved : public CObject
{
    DECLARE_SERIAL(CSaved)
};
IMPLEMENT_SERIAL(CSaved, CObject, 3)

} // namespace

TEST_CASE("a run-time class has the name, the size, the schema and the base of its class")
{
    const CRuntimeClass& disc = *RUNTIME_CLASS(CDisc);
    CHECK(CString(disc.m_lpszClassName) == "CDisc");
    CHECK(disc.m_nObjectSize == static_cast<int>(sizeof(CDisc)));
    CHECK(disc.m_wSchema == 0xFFFF);
    CHECK(RUNTIME_CLASS(CSaved)->m_wSchema == 3);
    CHECK(disc.m_pfnGetBaseClass() == RUNTIME_CLASS(CFigure));
    CHECK(RUNTIME_CLASS(CFigure)->m_pfnGetBaseClass() == RUNTIME_CLASS(CObject));
    CHECK(RUNTIME_CLASS(CObject)->m_pfnGetBaseClass() == nullptr);
}

TEST_CASE("a class is derived from itself and from all its bases, and from nothing else")
{
    CRuntimeClass* disc = RUNTIME_CLASS(CDisc);
    CHECK(disc->IsDerivedFrom(disc));
    CHECK(disc->IsDerivedFrom(RUNTIME_CLASS(CFigure)));
    CHECK(disc->IsDerivedFrom(RUNTIME_CLASS(CObject)));
    CHECK_FALSE(disc->IsDerivedFrom(RUNTIME_CLASS(CSaved)));
    CHECK_FALSE(RUNTIME_CLASS(CFigure)->IsDerivedFrom(disc));
    CHECK_FALSE(disc->IsDerivedFrom(nullptr));
}

TEST_CASE("an object is made from its run-time class")
{
    const std::unique_ptr<CObject> made(RUNTIME_CLASS(CDisc)->CreateObject());
    REQUIRE(made != nullptr);
    CDisc* disc = DYNAMIC_DOWNCAST(CDisc, made.get());
    REQUIRE(disc != nullptr);
    CHECK(disc->radius == 7);
    const std::unique_ptr<CObject> saved(RUNTIME_CLASS(CSaved)->CreateObject());
    CHECK(DYNAMIC_DOWNCAST(CSaved, saved.get()) != nullptr);
}

TEST_CASE("a class without dynamic creation makes no object")
{
    CHECK(RUNTIME_CLASS(CFigure)->CreateObject() == nullptr);
    CHECK(CRuntimeClass::CreateObject("CFigure") == nullptr);
}

TEST_CASE("a class is found by its name, wide or narrow, in any module")
{
    CHECK(CRuntimeClass::FromName("CDisc") == RUNTIME_CLASS(CDisc));
    CHECK(CRuntimeClass::FromName(L"CFigure") == RUNTIME_CLASS(CFigure));
    CHECK(CRuntimeClass::FromName("CDialog") == RUNTIME_CLASS(CDialog));
    CHECK(CRuntimeClass::FromName("cdisc") == nullptr);
    CHECK(CRuntimeClass::FromName("CUnheardOf") == nullptr);
    CHECK(CRuntimeClass::FromName(static_cast<LPCSTR>(NULL)) == nullptr);
    CHECK(CRuntimeClass::FromName(static_cast<LPCWSTR>(NULL)) == nullptr);
    CHECK(CRuntimeClass::FromName(std::wstring(300, L'x').c_str()) == nullptr);
}

TEST_CASE("an object is made from the name of its class, wide or narrow")
{
    const std::unique_ptr<CObject> narrow(CRuntimeClass::CreateObject("CDisc"));
    const std::unique_ptr<CObject> wide(CRuntimeClass::CreateObject(L"CDisc"));
    REQUIRE(narrow != nullptr);
    REQUIRE(wide != nullptr);
    CHECK(narrow->GetRuntimeClass() == RUNTIME_CLASS(CDisc));
    CHECK(wide->GetRuntimeClass() == RUNTIME_CLASS(CDisc));
    CHECK(CRuntimeClass::CreateObject("CUnheardOf") == nullptr);
    CHECK(CRuntimeClass::CreateObject(L"CUnheardOf") == nullptr);
}

TEST_CASE("a class is found as long as its module registers it")
{
    CRuntimeClass passing{};
    passing.m_lpszClassName = "CPassing";
    CRuntimeClass later{};
    later.m_lpszClassName = "CLater";
    auto first = std::make_unique<AFX_CLASSINIT>(&passing);
    auto second = std::make_unique<AFX_CLASSINIT>(&later);
    CHECK(CRuntimeClass::FromName("CPassing") == &passing);
    first.reset(); // Not the last one that came.
    CHECK(CRuntimeClass::FromName("CPassing") == nullptr);
    CHECK(CRuntimeClass::FromName("CLater") == &later);
    second.reset();
    CHECK(CRuntimeClass::FromName("CLater") == nullptr);
    CHECK(CRuntimeClass::FromName("CDisc") == RUNTIME_CLASS(CDisc));
}
