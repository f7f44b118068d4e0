#include "Robustness/FailingMemory.h"

#include <cerrno>
#include <cstdlib>
#include <new>

namespace {

using Level = FailingMemory::Level;

struct Plan {
    long left = -1; // below 0: nothing is refused any more
    bool fromThenOn = false;
    bool hasFailed = false;
    Level level = Level::New;
};

thread_local constinit Plan plan;

bool IsRefused(Level level) {
    if (plan.level != level || plan.left < 0 || (plan.left > 0 && plan.left-- > 0)) {
        return false;
    }
    plan.hasFailed = true;
    plan.left = plan.fromThenOn ? 0 : -1;
    return true;
}

void* Take(std::size_t size) noexcept {
    return IsRefused(Level::New) ? nullptr : std::malloc(size == 0 ? 1 : size);
}

void* OrThrow(void* memory) {
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

} // namespace

FailingMemory::FailingMemory(long k, bool fromThenOn, Level level) {
    plan = {k, fromThenOn, false, level};
}

FailingMemory::~FailingMemory() {
    plan.left = -1;
}

bool FailingMemory::HasFailed() {
    return plan.hasFailed;
}

// Every form but those with an alignment, which nobody uses: a sanitizer brings its own of those that are missing,
// which must not meet our delete. None inline: the compiler would see a mismatch between one half that it inlined and
// one that it did not.

[[gnu::noinline]] void* operator new(std::size_t size) {
    return OrThrow(Take(size));
}
[[gnu::noinline]] void* operator new[](std::size_t size) {
    return OrThrow(Take(size));
}
[[gnu::noinline]] void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return Take(size);
}
[[gnu::noinline]] void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return Take(size);
}
[[gnu::noinline]] void operator delete(void* memory) noexcept {
    std::free(memory);
}
[[gnu::noinline]] void operator delete[](void* memory) noexcept {
    std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
[[gnu::noinline]] void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__) || !defined(__GLIBC__)

bool FailingMemory::CanFailMalloc() {
    return false;
}

#else

bool FailingMemory::CanFailMalloc() {
    return true;
}

namespace {

void* NoMemory() {
    errno = ENOMEM;
    return nullptr;
}

} // namespace

// The C library's own, by the names that it keeps for those who stand in front of it.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);

void* malloc(std::size_t size) {
    return IsRefused(Level::Malloc) ? NoMemory() : __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) {
    return IsRefused(Level::Malloc) ? NoMemory() : __libc_calloc(count, size);
}
void* realloc(void* memory, std::size_t size) {
    return IsRefused(Level::Malloc) ? NoMemory() : __libc_realloc(memory, size);
}
}

#endif
