#pragma once

char* _getcwd(char* out, int capacity);
int _chdir(const char* folder);
