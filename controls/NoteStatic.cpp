#include "controls/NoteStatic.h"

BEGIN_MESSAGE_MAP(CNoteStatic, CStaticTS)
END_MESSAGE_MAP()

CNoteStatic::CNoteStatic()
{
}

CNoteStatic::~CNoteStatic()
{
}

void CNoteStatic::CopyWindowFont()
{
    const LRESULT font = SendMessage(WM_GETFONT, 0, 0);
    LOGFONT description = {};
    ::GetObject(reinterpret_cast<HGDIOBJ>(font), sizeof(description), &description);
    // Kept: the copy lives until the process ends.
    SetLabelFont(::CreateFontIndirect(&description));
}

const AFX_MSGMAP* CNoteStatic::GetBaseMessageMap() const
{
    return CStaticTS::GetMessageMap();
}
