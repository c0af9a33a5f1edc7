// The languages of which the gallery has samples, and the fonts that they are shown with.
#pragma once

#include <umbra.h>

struct Language
{
    UINT name;     ///< Strings of the resource script: in the language itself,
    UINT greeting; ///< a word or two,
    UINT sentence; ///< and a whole sentence.
    LPCTSTR address;
    LPCTSTR faces[2]; ///< Fonts that have the letters, the better one first. None: any has them.
};

enum { languageCount = 4 };
extern const Language languages[languageCount];

/// Makes a font in which a language can be shown, of the size of another one: with the first of its
/// faces that the system has, or else a plain copy, for which the system may find the letters.
void CreateLanguageFont(CFont& font, const Language& language, CFont* model);
