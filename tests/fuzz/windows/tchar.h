#pragma once

#include <cstring>

#define _tcslen std::strlen
#define _tcsnlen ::strnlen
#define _tcscpy std::strcpy
#define _tcscat std::strcat
#define _tcsncmp std::strncmp
#define _tgetcwd _getcwd
#define _tchdir _chdir
