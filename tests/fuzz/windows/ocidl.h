#pragma once

#include "afxwin.h"

using OLE_HANDLE = unsigned;
using HRESULT = std::int32_t;

struct IID
{
};
inline const IID IID_IPicture;

struct IPicture
{
    HRESULT get_Handle(OLE_HANDLE* handle);
    unsigned Release();
};
