// Linked with the guide's first program, as it stands: types a name into its page, and fails unless
// the greeting appears.
#include <umbra.h>

#include "resource.h"

#include <testing/MessageBoxAnswer.h>
#include <testing/Page.h>

#include <stdio.h>

using namespace umbra::testing;

namespace {

class GreetingCheck
{
public:
    GreetingCheck() = default;
    GreetingCheck(const GreetingCheck&) = delete;
    GreetingCheck& operator=(const GreetingCheck&) = delete;
    ~GreetingCheck()
    {
        if (m_greeting.Text() == _T("Hello, Ada") && m_greeting.HasAnswered())
            return;
        printf("the greeting says \"%s\"\n", Printable(m_greeting.Text()).c_str());
        fflush(stdout);
        ::ExitProcess(1);
    }

private:
    NextDialog m_page{[](HWND window) {
        Page page(window);
        page.Type(IDC_NAME, _T("Ada"));
        page.Click(IDOK);
    }};
    MessageBoxAnswer m_greeting{IDOK};
} theCheck; // Made before the program begins, and gone after its end.

} // namespace
