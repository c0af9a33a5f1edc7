#include "gallery/Wizard.h"

#include "gallery/Images.h"
#include "gallery/WizardPages.h"

#include <algorithm>

#include <ctype.h>
#include <string.h>

namespace {

const TCHAR indexName[] = _T("pictures.html");

// Text of this program in the bytes of the index page.
#ifdef UNICODE
const char indexCharset[] = "utf-8";

CStringA IndexText(const CString& text)
{
    return CStringA(CW2A(text, CP_UTF8));
}
#else
const char indexCharset[] = "windows-1252";

const CStringA& IndexText(const CString& text)
{
    return text;
}
#endif

bool IsPicture(const CString& fileName)
{
    const CString extension = fileName.Mid(fileName.ReverseFind(_T('.')) + 1);
    for (const LPCTSTR known : {_T("bmp"), _T("gif"), _T("jpg"), _T("jpeg")}) {
        if (extension.CompareNoCase(known) == 0)
            return true;
    }
    return false;
}

CStringA EscapeHtml(CStringA text)
{
    text.Replace("&", "&amp;");
    text.Replace("<", "&lt;");
    text.Replace("\"", "&quot;");
    return text;
}

// A file name as part of an address.
CStringA EscapeAddress(const CStringA& name)
{
    CStringA address;
    for (int i = 0; i < name.GetLength(); ++i) {
        const unsigned char c = static_cast<unsigned char>(name[i]);
        if (isalnum(c) || strchr("-_.~", c) != nullptr)
            address += static_cast<char>(c);
        else
            address.AppendFormat("%%%02X", c);
    }
    return address;
}

CStringA IndexPage(const WizardTask& task)
{
    const CStringA heading = EscapeHtml(IndexText(task.heading));
    CStringA page = CStringA("<!DOCTYPE html>\r\n<html lang=\"en\">\r\n<head>\r\n"
                             "<meta charset=\"") +
                    indexCharset + "\">\r\n<title>" + heading +
                    "</title>\r\n<style>\r\n"
                    "body { font-family: sans-serif; background: #f0f3f8; color: #2b3852; }\r\n"
                    "figure { display: inline-block; margin: 12px; vertical-align: top; }\r\n"
                    "img { max-width: 320px; border: 1px solid #becadb; }\r\n"
                    "</style>\r\n</head>\r\n<body>\r\n<h1>" +
                    heading + "</h1>\r\n";
    for (const CString& picture : task.pictures) {
        const CStringA fileName = IndexText(picture);
        const CStringA name = EscapeHtml(fileName);
        page += "<figure><img src=\"" + EscapeAddress(fileName) + "\" alt=\"" + name +
                "\"><figcaption>" + name + "</figcaption></figure>\r\n";
    }
    return page + "</body>\r\n</html>\r\n";
}

// The pages in their order; each answers as DoModal does.
INT_PTR ShowStep(int step, WizardTask& task, CWnd* parent)
{
    switch (step) {
    case 0:
        return CWizardFolderPage(task, parent).DoModal();
    case 1:
        return CWizardPicturesPage(task, parent).DoModal();
    case 2:
        return CWizardConfirmPage(task, parent).DoModal();
    default:
        return CWizardResultPage(task, parent).DoModal();
    }
}

} // namespace

void RunWizard(CWnd* parent)
{
    const int resultStep = 3;
    WizardTask task;
    task.folder = ImageFolder();
    int step = 0;
    while (step <= resultStep) {
        const INT_PTR answer = ShowStep(step, task, parent);
        if (answer == IDOK) {
            ++step;
            if (step == resultStep)
                WriteIndex(task);
        } else if (answer == IDC_BACK && step > 0) {
            --step;
        } else {
            return;
        }
    }
}

std::vector<CString> FindPictures(const CString& folder)
{
    std::vector<CString> names;
    CFileFind finder;
    BOOL more = finder.FindFile(folder + _T("*.*"));
    while (more) {
        more = finder.FindNextFile();
        if (!finder.IsDirectory() && IsPicture(finder.GetFileName()))
            names.push_back(finder.GetFileName());
    }
    std::sort(names.begin(), names.end(),
              [](const CString& a, const CString& b) { return a.CompareNoCase(b) < 0; });
    return names;
}

BOOL WriteIndex(WizardTask& task)
{
    task.indexFile.Empty();
    const CString path = task.folder + indexName;
    CFile file;
    if (!file.Open(path, CFile::modeCreate | CFile::modeWrite))
        return FALSE;
    try {
        const CStringA page = IndexPage(task);
        file.Write(static_cast<LPCSTR>(page), page.GetLength());
        file.Close();
    } catch (CFileException* exception) {
        exception->Delete();
        file.Abort();
        return FALSE;
    }
    task.indexFile = path;
    return TRUE;
}
