// A system whose file calls go wrong.
#include "FileFaults.h"

#include "platform/store/FileCalls.h"

#include <cerrno>
#include <csignal>
#include <ostream>
#include <sys/mman.h>

namespace {

Fault planned;
const FileCalls real;

/// Shared with the child processes.
int& Made() {
    static int* const made = static_cast<int*>(
        ::mmap(nullptr, sizeof(int), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    return *made;
}

template <auto One, auto Other> constexpr bool Is = false;
template <auto Same> constexpr bool Is<Same, Same> = true;

template <auto Member, typename Signature> struct Call;
template <auto Member, typename Result, typename... Arguments>
struct Call<Member, Result (*FileCalls::*)(Arguments...)> {
    static Result Really(Arguments... arguments) {
        if constexpr (Is<Member, &FileCalls::fsync>)
            return 0;
        else
            return (real.*Member)(arguments...);
    }
    static Result Half(Arguments... arguments) {
        if constexpr (Is<Member, &FileCalls::pwrite> || Is<Member, &FileCalls::pread>)
            return [](int file, auto* bytes, size_t count, off_t at) {
                return (real.*Member)(file, bytes, count / 2, at);
            }(arguments...);
        else if constexpr (Is<Member, &FileCalls::listxattr> || Is<Member, &FileCalls::getxattr> ||
                           Is<Member, &FileCalls::readlink>)
            return Really(arguments...) / 2;
        else
            return Really(arguments...);
    }
    static Result Fail(int error, Arguments... arguments) {
        // What fails to close is closed all the same.
        if constexpr (Is<Member, &FileCalls::close>)
            Really(arguments...);
        errno = error;
        return Is<Member, &FileCalls::posix_fallocate> ? Result(error) : Result(-1);
    }
    static Result Do(Arguments... arguments) {
        const int call = ++Made();
        if (planned.kind == FaultKind::FailsForGood && call >= planned.at)
            return Fail(EIO, arguments...);
        if (call != planned.at)
            return Really(arguments...);
        switch (planned.kind) {
        case FaultKind::Fails:
            return Fail(EIO, arguments...);
        case FaultKind::FailsAsMissing:
            return Fail(ENOENT, arguments...);
        case FaultKind::ComesShort:
            return Half(arguments...);
        case FaultKind::DiesHalfway:
            Half(arguments...);
            [[fallthrough]];
        case FaultKind::Dies:
            ::raise(SIGKILL);
            break;
        default:
            break;
        }
        return Really(arguments...);
    }
};

template <auto Member> void Put() {
    Calls().*Member = &Call<Member, decltype(Member)>::Do;
}

template <auto... Members> void PutAll() {
    (Put<Members>(), ...);
}

} // namespace

void GoWrong(Fault fault) {
    using C = FileCalls;
    planned = fault;
    PutAll<&C::open, &C::close, &C::pread, &C::pwrite, &C::ftruncate, &C::posix_fallocate, &C::fsync,
           &C::flock, &C::fstat, &C::lstat, &C::access, &C::readlink, &C::rename, &C::unlink, &C::fchown,
           &C::fchmod, &C::renameat2, &C::listxattr, &C::getxattr, &C::fsetxattr>();
    // Each member of the table is a pointer to a function.
    static_assert(sizeof(FileCalls) == 20 * sizeof(void (*)()), "a call that never goes wrong");
}

void GoWell() {
    Calls() = real;
}

int CallsMade() {
    return Made();
}

void ForgetCalls() {
    Made() = 0;
}

std::ostream& operator<<(std::ostream& out, const Fault& fault) {
    constexpr const char* names[] = {"no fault",    "fails", "fails as missing", "fails for good",
                                     "comes short", "dies",  "dies halfway"};
    return out << names[int(fault.kind)] << " at call " << fault.at;
}
