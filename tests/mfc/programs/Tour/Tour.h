// Tour.h : main header file for the TOUR application
//
#pragma once

#include "resource.h"

class CTourApp : public CWinApp
{
public:
    virtual BOOL InitInstance();
    virtual int ExitInstance();

    int m_nResponse;
};

extern CTourApp theApp;
