// Answers a message box, and tells what it has said.
#pragma once

#include "testing/NextDialog.h"
#include "testing/Text.h"

#include <string>

namespace umbra::testing {

/// Waits for the next message box that the calling thread shows and clicks one of its buttons.
/// Where several wait, each answers one box, in the order in which they were made.
///
///     MessageBoxAnswer answer(IDYES);
///     CHECK(AfxMessageBox("Go on?", MB_YESNO) == IDYES);
///     CHECK(answer.Text() == "Go on?");
class MessageBoxAnswer
{
public:
    explicit MessageBoxAnswer(int button);

    /// Whether a box came and had that button. A box without it is closed all the same: its caller
    /// gets IDABORT.
    bool HasAnswered() const { return m_hasAnswered; }
    /// Of the box that came; empty before.
    const TString& Text() const { return m_text; }
    const TString& Title() const { return m_title; }

private:
    void Answer(HWND box, int button);

    bool m_hasAnswered = false;
    TString m_text;
    TString m_title;
    NextDialog m_box;
};

} // namespace umbra::testing
