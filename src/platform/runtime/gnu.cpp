// Locks, thread data and calls that are made once, as GCC's runtime and std::mutex ask for them, straight on Windows' own.
// They stand in for winpthreads, which is not linked: when a DLL is unloaded it keeps a slot of thread storage, of which
// a process has 1088, and the memory of every lock and thread; and it hooks the process's exceptions. A function that is
// missing here would bring winpthreads back, and the linker would report the others as defined twice.
#include <pthread.h>
#include <windows.h>

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <iterator>

#include "platform/runtime/runtime.h"

// Frees the memory that is set aside for exceptions. GCC has no header with it.
namespace __gnu_cxx {
void __freeres();
}

namespace {

// Windows' locks start as 0, those of <pthread.h> as a small negative number, which no lock of Windows ever is.
template <class Native, class Posix>
Native* NativeOf(Posix* object) {
    static_assert(sizeof(Native) == sizeof(Posix) && alignof(Native) == alignof(Posix));
    const std::atomic_ref<Posix> state(*object);
    Posix seen = state.load();
    if (seen < 0 && seen >= PTHREAD_RECURSIVE_MUTEX_INITIALIZER) state.compare_exchange_strong(seen, 0);
    return reinterpret_cast<Native*>(object);
}
SRWLOCK* LockOf(pthread_mutex_t* mutex) { return NativeOf<SRWLOCK>(mutex); }

// Data of threads. The runtime has two keys: for exceptions and for thread_local variables. Slots of fibers, because
// Windows calls back for each thread's value when the thread ends, and for all values when the slot is freed.
using Destructor = void (*)(void*);
struct Key {
    std::atomic<bool> taken;
    std::atomic<DWORD> slot;
    Destructor destructor;
};
constinit Key keys[4]{};

template <std::size_t key>
void WINAPI Destroy(void* value) {
    if (value && keys[key].destructor) keys[key].destructor(value);
}
constexpr PFLS_CALLBACK_FUNCTION destroyers[] = {Destroy<0>, Destroy<1>, Destroy<2>, Destroy<3>};
static_assert(std::size(destroyers) == std::size(keys));

}  // namespace

extern "C" {

int pthread_mutex_init(pthread_mutex_t* mutex, const pthread_mutexattr_t*) {
    *mutex = 0;
    return 0;
}
int pthread_mutex_destroy(pthread_mutex_t*) { return 0; }
int pthread_mutex_lock(pthread_mutex_t* mutex) {
    AcquireSRWLockExclusive(LockOf(mutex));
    return 0;
}
int pthread_mutex_unlock(pthread_mutex_t* mutex) {
    ReleaseSRWLockExclusive(LockOf(mutex));
    return 0;
}

int pthread_cond_wait(pthread_cond_t* condition, pthread_mutex_t* mutex) {
    SleepConditionVariableSRW(NativeOf<CONDITION_VARIABLE>(condition), LockOf(mutex), INFINITE, 0);
    return 0;
}
int pthread_cond_broadcast(pthread_cond_t* condition) {
    WakeAllConditionVariable(NativeOf<CONDITION_VARIABLE>(condition));
    return 0;
}

int pthread_once(pthread_once_t* once, void (*call)()) {
    constexpr pthread_once_t done = 1, running = 2;
    const std::atomic_ref<pthread_once_t> state(*once);
    for (pthread_once_t seen = PTHREAD_ONCE_INIT; !state.compare_exchange_strong(seen, running);
         seen = PTHREAD_ONCE_INIT) {
        if (seen == done) return 0;
        Sleep(1);
    }
    call();
    state.store(done);
    return 0;
}

int pthread_key_create(pthread_key_t* key, Destructor destructor) {
    for (std::size_t i = 0; i < std::size(keys); ++i) {
        if (keys[i].taken.exchange(true)) continue;
        keys[i].destructor = destructor;
        const DWORD slot = FlsAlloc(destroyers[i]);
        keys[i].slot = slot;
        if (slot == FLS_OUT_OF_INDEXES) {
            keys[i].taken = false;
            break;
        }
        *key = static_cast<pthread_key_t>(i);
        return 0;
    }
    return EAGAIN;
}
int pthread_key_delete(pthread_key_t key) {
    if (keys[key].taken.exchange(false)) FlsFree(keys[key].slot);
    return 0;
}
void* pthread_getspecific(pthread_key_t key) { return FlsGetValue(keys[key].slot); }
int pthread_setspecific(pthread_key_t key, const void* value) {
    return FlsSetValue(keys[key].slot, const_cast<void*>(value)) ? 0 : ENOMEM;
}

}  // extern "C"

void zorvic::runtime::Free() {
    __gnu_cxx::__freeres();
    for (std::size_t i = 0; i < std::size(keys); ++i) pthread_key_delete(static_cast<pthread_key_t>(i));
}
