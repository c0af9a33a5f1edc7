#include "testing/MessageBoxAnswer.h"
#include "testing/OpenDialogs.h"
#include "testing/Page.h"
#include "testing/ThreadWindows.h"

namespace umbra::testing {

namespace {

/// The texts of its static controls; an icon has none.
TString TextIn(HWND box)
{
    TString text;
    for (HWND child = ::GetWindow(box, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        char kind[16] = "";
        ::GetClassNameA(child, kind, sizeof kind);
        if (std::string(kind) == "Static")
            text += TextOf(child);
    }
    return text;
}

} // namespace

MessageBoxAnswer::MessageBoxAnswer(int button)
    : m_box([this, button](HWND box) { Answer(box, button); }, IsMessageBox)
{
}

void MessageBoxAnswer::Answer(HWND box, int button)
{
    Page page(box);
    m_title = page.Title();
    m_text = TextIn(box);
    m_hasAnswered = page.Click(button);
    if (!m_hasAnswered)
        ::EndDialog(box, IDABORT);
}

} // namespace umbra::testing
