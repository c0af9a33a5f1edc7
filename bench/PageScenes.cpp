#include "bench/PageScenes.h"

#include "bench/start/resource.h"

#include <umbra.h>

#include <vector>

namespace {

constexpr int columns = 10;

class ScenePage : public CBaseDialog
{
public:
    ScenePage()
        : CBaseDialog(IDD_START, nullptr, true, false, true, false, false, true, false, true)
    {
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CBaseDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_TEXT, m_text);
    }

private:
    CStaticTS m_text;
};

INT_PTR CALLBACK PlainProcedure(HWND, UINT message, WPARAM, LPARAM)
{
    return message == WM_INITDIALOG;
}

HWND AddControl(HWND page, int index)
{
    const bool isButton = index % 2 != 0;
    CString text;
    text.Format(_T("Control %d"), index);
    return ::CreateWindow(isButton ? _T("Button") : _T("Static"), text,
                          WS_CHILD | WS_VISIBLE | (isButton ? BS_PUSHBUTTON : SS_NOTIFY),
                          80 + index % columns * 70, 120 + index / columns * 22, 66, 20, page,
                          nullptr, ::GetModuleHandle(nullptr), nullptr);
}

} // namespace

struct PageScene::Content
{
    HWND window = nullptr;
    ScenePage page;
    std::vector<std::unique_ptr<CWnd>> controls;
};

PageScene::PageScene(SceneKind kind, int controls) : m_content(new Content)
{
    if (kind == SceneKind::plain) {
        m_content->window = ::CreateDialogParam(
            ::GetModuleHandle(nullptr), MAKEINTRESOURCE(IDD_START), nullptr, PlainProcedure, 0);
    } else {
        m_content->page.Create(IDD_START);
        m_content->window = m_content->page.m_hWnd;
        m_content->page.SetBufferedPainting(kind == SceneKind::buffered);
    }
    ::SetWindowPos(m_content->window, nullptr, 0, 0, 800, 140 + 22 * (controls / columns + 1),
                   SWP_NOZORDER);
    for (int i = 0; i < controls; ++i) {
        const HWND control = AddControl(m_content->window, i);
        if (kind == SceneKind::plain)
            continue;
        if (i % 2 == 0) {
            m_content->controls.push_back(std::make_unique<CStaticTS>());
            m_content->controls.back()->SubclassWindow(control);
        } else {
            auto button = std::make_unique<CxShadeButton>();
            button->SubclassWindow(control);
            m_content->page.ApplyButtonShade(*button);
            m_content->controls.push_back(std::move(button));
        }
    }
    Show(false);
}

PageScene::~PageScene()
{
    ::DestroyWindow(m_content->window);
}

void PageScene::Show(bool shown)
{
    ::ShowWindow(m_content->window, shown ? SW_SHOWNA : SW_HIDE);
    Repaint();
}

void PageScene::Repaint()
{
    ::RedrawWindow(m_content->window, nullptr, nullptr,
                   RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}
