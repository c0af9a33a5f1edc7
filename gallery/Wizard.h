// The wizard: chooses a folder, lists its picture files, and writes an index page of them there.
#pragma once

#include <umbra.h>

#include <vector>

/// What the pages hand on to each other.
struct WizardTask
{
    CString folder;                ///< With a backslash at its end.
    CString heading;               ///< Of the index page.
    std::vector<CString> pictures; ///< File names.
    CString indexFile;             ///< Full path of what was written; empty when that failed.
};

/// Leads through the pages until the user has finished or given up.
void RunWizard(CWnd* parent);

/// The names of the picture files in a folder, sorted.
std::vector<CString> FindPictures(const CString& folder);

/// Writes the index page into the task's folder and notes its path; FALSE when that cannot be done.
BOOL WriteIndex(WizardTask& task);
