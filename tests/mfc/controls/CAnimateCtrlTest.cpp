#include <afxcmn.h>

#include <doctest/doctest.h>

#include "testing/MessageLog.h"

#include "tests/mfc/ControlHost.h"

using namespace umbra::testing;

TEST_CASE("an animation that is missing is not opened")
{
    ControlHost host;
    CAnimateCtrl clip;
    REQUIRE(clip.Create(shownChild | ACS_CENTER, CRect(10, 10, 110, 60), &host, 33));
    CHECK((clip.GetStyle() & ACS_CENTER) != 0);
    CHECK_FALSE(clip.Open(_T("C:\\no such file.avi")));
    CHECK_FALSE(clip.Open(4711u));
    CHECK_FALSE(clip.IsPlaying());
}

TEST_CASE("an animation is told frames and repetitions")
{
    ControlHost host;
    CAnimateCtrl clip;
    REQUIRE(clip.Create(shownChild, CRect(10, 10, 110, 60), &host, 33));
    MessageLog log(clip.m_hWnd);
    clip.Play(2, (UINT)-1, 5);
    REQUIRE(log.Contains(ACM_PLAY));
    CHECK(log.Last(ACM_PLAY)->wParam == 5);
    CHECK(log.Last(ACM_PLAY)->lParam == MAKELPARAM(2, 0xffff));
    clip.Seek(3);
    CHECK(log.Last(ACM_PLAY)->wParam == 1);
    CHECK(log.Last(ACM_PLAY)->lParam == MAKELPARAM(3, 3));
    clip.Stop();
    CHECK(log.Contains(ACM_STOP));
    clip.Close();
    REQUIRE(log.Contains(ACM_OPEN));
    CHECK(log.Last(ACM_OPEN)->lParam == 0);
}
