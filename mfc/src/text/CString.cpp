// Both strings, out of the one template.
#include "text/CStringBuffer.h"
#include "text/CStringChanges.h"
#include "text/CStringCompare.h"
#include "text/CStringConversions.h"
#include "text/CStringFormat.h"
#include "text/CStringLoading.h"
#include "text/CStringSearch.h"

#ifdef __clang__ // The declarations have the mark of the exports.
template class CStringT<char, StrTraitMFC_DLL<char>>;
template class CStringT<wchar_t, StrTraitMFC_DLL<wchar_t>>;
#else
template class AFX_EXPORTED CStringT<char, StrTraitMFC_DLL<char>>;
template class AFX_EXPORTED CStringT<wchar_t, StrTraitMFC_DLL<wchar_t>>;
#endif
