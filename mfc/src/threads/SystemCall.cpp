#include "threads/SystemCall.h"

#include <classes/CException.h>
#include <classes/CWinThread.h>
#include <classes/Trace.h>

#include <new>

namespace afxint {

namespace {

/// Stands for an exception that is none of the library's. It has no text of its own.
class ForeignException : public CException
{
public:
    ForeignException() : CException(FALSE) {}
};

/// The answer where no thread object can give it.
LRESULT AnswerFailure(const MSG& message)
{
    if (message.message == WM_PAINT)
        ValidateRect(message.hwnd, NULL);
    return message.message == WM_CREATE ? -1 : 0;
}

LRESULT Answer(CException& e, const MSG& message)
{
    CWinThread* thread = AfxGetThread();
    return thread == NULL ? AnswerFailure(message) : thread->ProcessWndProcException(&e, &message);
}

LRESULT AnswerForeign(const MSG& message)
{
    TRACE(_T("Message 0x%04X: the handler failed with a foreign exception.\n"), message.message);
    ForeignException e;
    return Answer(e, message);
}

LRESULT AnswerLackOfMemory(const MSG& message)
{
    try {
        AfxThrowMemoryException();
    } catch (CMemoryException* e) {
        return Answer(*e, message);
    }
}

LRESULT AnswerCaught(const MSG& message)
{
    try {
        throw;
    } catch (CException* e) {
        const CaughtException deletes(e);
        return Answer(*e, message);
    } catch (const std::bad_alloc&) {
        return AnswerLackOfMemory(message);
    } catch (...) {
        return AnswerForeign(message);
    }
}

} // namespace

LRESULT AnswerException(const MSG& message) noexcept
{
    try {
        return AnswerCaught(message);
    } catch (CException* e) {
        e->Delete(); // The answer failed as well.
    } catch (...) {
        TRACE(_T("The answer to an exception failed with another one.\n"));
    }
    return AnswerFailure(message);
}

} // namespace afxint
