#include <cstdlib>

namespace __gnu_cxx { // NOLINT(bugprone-reserved-identifier): the C++ library's own name

/// Stands in for the C++ library's way to end a program whose exception nobody catches, which names the exception: the
/// demangler for that would be a thirtieth of the DLL.
[[noreturn]] void __verbose_terminate_handler() { // NOLINT(bugprone-reserved-identifier)
    std::abort();
}

} // namespace __gnu_cxx
