#pragma once

namespace rulecanvas::test {

/// Loading a shared library at run time, as each system does it. Null: there is no such library or function.
void* OpenLibrary(const char* path);
void CloseLibrary(void* library);
void* FindFunction(void* library, const char* name);
bool IsInMemory(const char* path);

} // namespace rulecanvas::test
