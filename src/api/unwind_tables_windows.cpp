// Makes exceptions inside the library find their way in a process that also holds the compiler's shared runtime library.
//
// The library carries a runtime of its own. When it is loaded, the compiler's start-up code registers the tables of its
// frames with the shared runtime instead, wherever that is loaded already. An exception asks our own runtime, which then
// knows no frame and ends the process. Only 32-bit code registers such tables.

#include <cstring>
#include <windows.h>

extern "C" {

/// The library as it lies in memory.
extern BYTE __ImageBase[];

/// What the runtime tells of the frame of an address.
struct FrameBases {
    void* text;
    void* data;
    void* function;
};

const void* _Unwind_Find_FDE(void* address, FrameBases* bases);
void __register_frame(void* tables);
void __deregister_frame(void* tables);

} // extern "C"

namespace rulecanvas {
namespace {

/// Names of sections are cut to eight characters.
constexpr char TablesSection[] = ".eh_fram";

void* FindTables() {
    const auto* const start = reinterpret_cast<const IMAGE_DOS_HEADER*>(__ImageBase);
    const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(__ImageBase + start->e_lfanew);
    const auto* const sections = reinterpret_cast<const IMAGE_SECTION_HEADER*>(headers + 1);
    for (WORD i = 0; i < headers->FileHeader.NumberOfSections; ++i) {
        if (std::memcmp(sections[i].Name, TablesSection, IMAGE_SIZEOF_SHORT_NAME) == 0) {
            return __ImageBase + sections[i].VirtualAddress;
        }
    }
    return nullptr;
}

/// Whether our runtime knows the frames of this library. It must not be told of them twice.
bool KnowsOwnFrames() {
    FrameBases bases{};
    return _Unwind_Find_FDE(reinterpret_cast<void*>(&KnowsOwnFrames), &bases) != nullptr;
}

/// Registered from the loading of the library to its unloading.
class UnwindTables {
  public:
    UnwindTables() : tables(KnowsOwnFrames() ? nullptr : FindTables()) {
        if (tables != nullptr) {
            __register_frame(tables);
        }
    }
    ~UnwindTables() {
        if (tables != nullptr) {
            __deregister_frame(tables);
        }
    }
    UnwindTables(const UnwindTables&) = delete;
    UnwindTables& operator=(const UnwindTables&) = delete;

  private:
    void* const tables;
};

/// The first object to be made and the last to be destroyed: the others may throw and catch.
[[gnu::init_priority(101)]] UnwindTables unwindTables;

} // namespace
} // namespace rulecanvas
