// Text that no code page but UTF-8 holds as a whole; in the narrow flavour, text of its code page.
#pragma once

#include <afxwin.h>

#ifdef UNICODE
/// Japanese, Polish, Arabic and two emoji, which have two units of UTF-16 each.
inline const CString fourScripts(L"\u65E5\u672C\u8A9E za\u017C\u00F3\u0142\u0107 "
                                 L"\u0645\u0631\u062D\u0628\u0627 \U0001F600\U0001F408");
#elif defined(UMBRA_TEST_UTF8) // The program's code page is UTF-8.
inline const CString fourScripts("\u65E5\u672C\u8A9E za\u017C\u00F3\u0142\u0107 "
                                 "\u0645\u0631\u062D\u0628\u0627 \U0001F600\U0001F408");
#else
inline const CString fourScripts("what every code page has");
#endif
