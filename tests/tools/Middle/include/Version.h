// Version.h : what the version resource says

#pragma once

int CompanyNameLength();
