// Drives modal dialogs to their end, as a user would, and tells what they returned.
#pragma once

#include "testing/Page.h"
#include "testing/Text.h"

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace umbra::testing {

/// One thing that a user does to a page, or looks at. Between two steps the page's own message loop
/// goes on.
using Step = std::function<void(Page&)>;
using Steps = std::vector<Step>;

/// What became of modal dialogs that were driven.
struct ModalOutcome
{
    INT_PTR result = -1;  ///< What the caller of the dialogs got.
    std::string failure;  ///< Empty: all steps have run, and all dialogs have closed by them.
    TString pictureFile;  ///< Of what was open when the time was up, a PNG; empty otherwise.
    bool hasQuit = false; ///< WM_QUIT came, after which no modal dialog shows; it was taken.
};

/// How long a step may take, and a dialog to come or to close after its last step.
constexpr std::chrono::milliseconds usualModalLimit = std::chrono::seconds(10);

/// Shows the dialog by its DoModal and runs the steps in their order, each when the dialog is open
/// to the user. The last one has to close it, by whatever closes it for a user.
///
///     CNamePage dialog;
///     const ModalOutcome outcome = DoModal(dialog, {
///         [](Page& page) { page.Type(IDC_NAME, "Ada"); },
///         [](Page& page) { page.Click(IDOK); },
///     });
///     CHECK(outcome.failure == "");
///     CHECK(outcome.result == IDOK);
///
/// When the limit is up, the failure says which step was due and lists the windows, a picture of
/// them goes to a file in the working directory, and all dialogs that have come are ended with
/// IDABORT: the test goes on. (A dialog that takes no messages cannot be ended so: CrashReport.h.)
/// What a step throws ends the dialogs, too, and comes out of this function.
ModalOutcome DoModal(CDialog& dialog, Steps steps,
                     std::chrono::milliseconds limit = usualModalLimit);

/// The same for whatever shows several dialogs, one after another: each gets steps of its own.
ModalOutcome DriveDialogs(const std::function<INT_PTR()>& show, std::vector<Steps> dialogs,
                          std::chrono::milliseconds limit = usualModalLimit);

} // namespace umbra::testing
