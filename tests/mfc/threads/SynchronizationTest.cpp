#include <afxmt.h>

#include <doctest/doctest.h>

#include "tests/mfc/Throws.h"

#include <thread>

namespace {

/// The result of an action in a thread of its own.
template <class Action>
auto InThread(Action action)
{
    decltype(action()) result{};
    std::thread([&] { result = action(); }).join();
    return result;
}

bool ThrowsInvalidArg(auto action)
{
    return Throws<CInvalidArgException>(action);
}

} // namespace

TEST_CASE("an event lets threads pass when it is set")
{
    CEvent automatic;
    CHECK_FALSE(automatic.Lock(0));
    CHECK(automatic.SetEvent());
    CHECK(automatic.Lock(0));
    CHECK_FALSE(automatic.Lock(0));
    CHECK(automatic.Unlock());
    CHECK_FALSE(automatic.Lock(0));

    CEvent manual(TRUE, TRUE);
    CHECK(manual.Lock(0));
    CHECK(manual.Lock(0));
    CHECK(manual.ResetEvent());
    CHECK_FALSE(manual.Lock(0));
    CHECK(manual.PulseEvent());
    CHECK_FALSE(manual.Lock(0));

    CEvent go;
    CEvent done;
    std::thread worker([&] {
        go.Lock();
        done.SetEvent();
    });
    CHECK_FALSE(done.Lock(20));
    go.SetEvent();
    CHECK(done.Lock(5000));
    worker.join();
}

TEST_CASE("a mutex belongs to one thread at a time")
{
    CMutex mutex(TRUE);
    CHECK(mutex.Lock(0));
    CHECK_FALSE(InThread([&] { return mutex.Lock(0); }));
    CHECK_FALSE(InThread([&] { return mutex.Unlock(); }));
    CHECK(mutex.Unlock());
    CHECK_FALSE(InThread([&] { return mutex.Lock(0); }));
    CHECK(mutex.Unlock());
    CHECK(InThread([&] { return mutex.Lock(0) && mutex.Unlock(); }));
}

TEST_CASE("a semaphore counts")
{
    CSemaphore semaphore(1, 3);
    CHECK(semaphore.Lock(0));
    CHECK_FALSE(semaphore.Lock(0));
    LONG former = -1;
    CHECK(semaphore.Unlock(2, &former));
    CHECK(former == 0);
    CHECK(semaphore.Lock(0));
    CHECK(semaphore.Lock(0));
    CHECK_FALSE(semaphore.Lock(0));
    CHECK_FALSE(semaphore.Unlock(4));
    CHECK(semaphore.Unlock());
    CHECK(semaphore.Lock(0));
}

TEST_CASE("a critical section keeps other threads out")
{
    CCriticalSection section;
    int counter = 0;
    const auto count = [&] {
        for (int i = 0; i < 20000; ++i) {
            CSingleLock lock(&section, TRUE);
            ++counter;
        }
    };
    std::thread other(count);
    count();
    other.join();
    CHECK(counter == 40000);

    CHECK(section.Lock());
    CHECK(section.Lock(10));
    CHECK_FALSE(InThread([&] { return ::TryEnterCriticalSection(section); }));
    CHECK(section.Unlock());
    CHECK(section.Unlock());
    CHECK(InThread([&] {
        const BOOL entered = ::TryEnterCriticalSection(section);
        ::LeaveCriticalSection(section);
        return entered;
    }));
}

TEST_CASE("a single lock gives back what it took")
{
    CMutex mutex;
    {
        CSingleLock lock(&mutex);
        CHECK_FALSE(lock.IsLocked());
        CHECK(lock.Lock(0));
        CHECK(lock.IsLocked());
        CHECK_FALSE(InThread([&] { return mutex.Lock(0); }));
        CHECK(lock.Unlock());
        CHECK_FALSE(lock.IsLocked());
        CHECK(InThread([&] { return mutex.Lock(0) && mutex.Unlock(); }));
        CHECK(lock.Lock());
    }
    CHECK(InThread([&] { return mutex.Lock(0) && mutex.Unlock(); }));

    CEvent never;
    CSingleLock failing(&never);
    CHECK_FALSE(failing.Lock(0));
    CHECK_FALSE(failing.IsLocked());

    CSemaphore semaphore(2, 2);
    CSingleLock counted(&semaphore, TRUE);
    REQUIRE(semaphore.Lock(0));
    CHECK(counted.Unlock(2));
    CHECK_FALSE(counted.IsLocked());
    CHECK(semaphore.Lock(0));
    CHECK(ThrowsInvalidArg([] { CSingleLock(NULL); }));
}

TEST_CASE("a multiple lock waits for all objects or for any")
{
    CMutex mutex;
    CEvent event;
    CSyncObject* objects[] = {&mutex, &event};
    CMultiLock lock(objects, 2);
    CHECK(lock.Lock(0) == WAIT_TIMEOUT);
    CHECK_FALSE(lock.IsLocked(0));
    CHECK(lock.Lock(0, FALSE) == WAIT_OBJECT_0);
    CHECK(lock.IsLocked(0));
    CHECK_FALSE(lock.IsLocked(1));
    CHECK_FALSE(InThread([&] { return mutex.Lock(0); }));
    CHECK(lock.Unlock());
    CHECK_FALSE(lock.IsLocked(0));
    CHECK(InThread([&] { return mutex.Lock(0) && mutex.Unlock(); }));
    event.SetEvent();
    CHECK(lock.Lock(0) == WAIT_OBJECT_0);
    CHECK(lock.IsLocked(0));
    CHECK(lock.IsLocked(1));
    CHECK_FALSE(lock.IsLocked(2));
    CHECK(lock.Unlock());
    CHECK(lock.Lock(0, TRUE, QS_ALLINPUT) == WAIT_TIMEOUT);
}

TEST_CASE("a multiple lock waits for at most 64 objects, and never for a critical section")
{
    CCriticalSection section;
    CEvent event;
    CSyncObject* objects[] = {&event, &section};
    CHECK(ThrowsInvalidArg([&] { CMultiLock(objects, 2); }));
    CHECK(ThrowsInvalidArg([&] { CMultiLock(objects, 0); }));
    CHECK(ThrowsInvalidArg([&] { CMultiLock(objects, 65); }));
    CHECK(ThrowsInvalidArg([&] { CMultiLock(NULL, 1); }));
}

TEST_CASE("objects of one name are one object, and a name of another kind is refused")
{
    CString name;
    name.Format(_T("umbra-test-%lu"), ::GetCurrentProcessId());
    CEvent first(FALSE, TRUE, name);
    CEvent second(FALSE, TRUE, name);
    CHECK(first.SetEvent());
    CHECK(second.Lock(0));
    CHECK(Throws<CResourceException>([&] { CMutex mutex(FALSE, name); }));
    CHECK(Throws<CResourceException>([] { CSemaphore semaphore(2, 1); }));
    CHECK(first.IsKindOf(RUNTIME_CLASS(CSyncObject)));
}
