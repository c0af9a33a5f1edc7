// Calls that reach both contexts of a CDC: the one it draws to and the one it asks.
#pragma once

#include <classes/CDC.h>

namespace afxint {

/// Makes a setting in the output context and, where that is another one, in the attribute context.
/// The result is the attribute context's, as for questions.
template <class Call>
auto OnBoth(const CDC& dc, Call call)
{
    if (dc.m_hAttribDC == NULL || dc.m_hAttribDC == dc.m_hDC)
        return call(dc.m_hDC);
    if (dc.m_hDC != NULL)
        call(dc.m_hDC);
    return call(dc.m_hAttribDC);
}

} // namespace afxint
