#include <afxext.h>

#include <doctest/doctest.h>

#include "testing/Canvas.h"
#include "testing/GdiObjects.h"

using namespace umbra::testing;

TEST_CASE("what a metafile context recorded is played elsewhere")
{
    BalancedGdi balance;
    {
        CMetaFileDC recorder;
        REQUIRE(recorder.Create());
        CHECK(recorder.m_hAttribDC == nullptr);
        recorder.PatBlt(2, 3, 4, 5, BLACKNESS);
        const HMETAFILE recording = recorder.Close();
        REQUIRE(recording != nullptr);
        CHECK(recorder.m_hDC == nullptr);

        Canvas canvas(10, 10);
        CHECK(CDC::FromHandle(canvas.Dc())->PlayMetaFile(recording));
        CHECK(canvas.ToPicture().CountOf(RGB(0, 0, 0)) == 20);
        ::DeleteMetaFile(recording);
    }
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
}

TEST_CASE("an enhanced recording fills the rectangle it is played into")
{
    BalancedGdi balance;
    {
        CMetaFileDC recorder;
        const CRect bounds(0, 0, 1000, 1000);
        REQUIRE(recorder.CreateEnhanced(nullptr, nullptr, &bounds, nullptr));
        const BYTE comment[] = "A comment";
        CHECK(recorder.AddMetaFileComment(sizeof(comment), comment));
        recorder.PatBlt(0, 0, 500, 500, BLACKNESS);
        const HENHMETAFILE recording = recorder.CloseEnhanced();
        REQUIRE(recording != nullptr);

        Canvas canvas(20, 20);
        const CRect target(0, 0, 20, 20);
        CHECK(CDC::FromHandle(canvas.Dc())->PlayMetaFile(recording, &target));
        CHECK(canvas.ToPicture().Contains(RGB(0, 0, 0)));
        ::DeleteEnhMetaFile(recording);
    }
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
}

TEST_CASE("a recording that nobody closed is thrown away")
{
    BalancedGdi balance;
    {
        CMetaFileDC plain;
        CHECK(plain.Create());
        CMetaFileDC enhanced;
        CHECK(enhanced.CreateEnhanced(nullptr, nullptr, nullptr, nullptr));
        CMetaFileDC unused;
    }
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
}

TEST_CASE("a metafile context asks the attribute context it is given")
{
    Canvas canvas(10, 10);
    CMetaFileDC recorder;
    REQUIRE(recorder.Create());
    CHECK(recorder.GetDeviceCaps(LOGPIXELSX) == 0);
    recorder.SetAttribDC(canvas.Dc());
    CHECK(recorder.GetDeviceCaps(LOGPIXELSX) == ::GetDeviceCaps(canvas.Dc(), LOGPIXELSX));
    recorder.SetTextColor(RGB(1, 2, 3));
    CHECK(::GetTextColor(canvas.Dc()) == RGB(1, 2, 3));
    ::DeleteMetaFile(recorder.Close());
    CHECK(::GetObjectType(canvas.Dc()) == OBJ_MEMDC);
}
