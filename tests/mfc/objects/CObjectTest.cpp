#include <afxwin.h>

#include <doctest/doctest.h>

namespace {

class CShape : public CObject
{
    DECLARE_DYNAMIC(CShape)
};
IMPLEMENT_DYNAMIC(CShape, CObject)

class CCircle : public CShape
{
    DECLARE_DYNCREATE(CCircle)
public:
    int m_nRadius = 7;
};
IMPLEMENT_DYNCREATE(CCircle, CShape)

class CStored : public CObject
{
    DECLARE_SERIAL(CStored)
};
IMPLEMENT_SERIAL(CStored, CObject, 3)

class CFormButton : public CButton
{
    DECLARE_DYNAMIC(CFormButton)
};
IMPLEMENT_DYNAMIC(CFormButton, CButton)

} // namespace

TEST_CASE("an object knows its own class and the classes it is derived from")
{
    const CCircle circle;
    CHECK(circle.GetRuntimeClass() == RUNTIME_CLASS(CCircle));
    CHECK(circle.IsKindOf(RUNTIME_CLASS(CCircle)));
    CHECK(circle.IsKindOf(RUNTIME_CLASS(CShape)));
    CHECK(circle.IsKindOf(RUNTIME_CLASS(CObject)));
    CHECK_FALSE(circle.IsKindOf(RUNTIME_CLASS(CStored)));
    CHECK_FALSE(RUNTIME_CLASS(CShape)->IsDerivedFrom(RUNTIME_CLASS(CCircle)));
    CHECK(strcmp(circle.GetRuntimeClass()->m_lpszClassName, "CCircle") == 0);
    CHECK(circle.GetRuntimeClass()->m_nObjectSize == int(sizeof(CCircle)));
}

TEST_CASE("a class derived from one in the library knows the library's classes")
{
    const CFormButton button;
    CHECK(button.IsKindOf(RUNTIME_CLASS(CButton)));
    CHECK(button.IsKindOf(RUNTIME_CLASS(CWnd)));
    CHECK(button.IsKindOf(RUNTIME_CLASS(CCmdTarget)));
    CHECK_FALSE(button.IsKindOf(RUNTIME_CLASS(CDialog)));
}

TEST_CASE("a cast down gives NULL for an object of another class")
{
    CCircle circle;
    CObject* object = &circle;
    CHECK(DYNAMIC_DOWNCAST(CShape, object) == &circle);
    CHECK(STATIC_DOWNCAST(CCircle, object) == &circle);
    CHECK(DYNAMIC_DOWNCAST(CStored, object) == nullptr);
    object = nullptr;
    CHECK(DYNAMIC_DOWNCAST(CShape, object) == nullptr);
}

TEST_CASE("only a class with a schema is serialisable")
{
    CHECK(CStored().IsSerializable());
    CHECK(CStored().GetRuntimeClass()->m_wSchema == 3);
    CHECK_FALSE(CCircle().IsSerializable());
}

#define new DEBUG_NEW
TEST_CASE("objects are made with the tracking form of new, too")
{
    CCircle* circle = new CCircle;
    CHECK(circle->m_nRadius == 7);
    delete circle;
}
#undef new

TEST_CASE("objects are made where the caller says")
{
    alignas(CCircle) unsigned char place[sizeof(CCircle)];
    CCircle* circle = new (place) CCircle;
    CHECK(static_cast<void*>(circle) == place);
    circle->~CCircle();
}
