// Planner.h : main header file for the PLANNER application
//
#pragma once

#include "resource.h"

class CPlannerApp : public CWinApp
{
public:
    virtual BOOL InitInstance();
    virtual int ExitInstance();

    int m_nResponse;

    DECLARE_MESSAGE_MAP()
};
