#pragma once

#include <stddef.h>

// The functions of the operating system that these programs use; there is no C library to include.
extern "C" {
void* __cdecl malloc(size_t size);
void __cdecl free(void* memory);
int __cdecl printf(const char* format, ...);
int __cdecl strcmp(const char* a, const char* b);
void* __cdecl memcpy(void* to, const void* from, size_t size);
void* __cdecl memset(void* memory, int value, size_t size);
__declspec(noreturn) void __cdecl exit(int code);
__declspec(dllimport) void* __stdcall GetModuleHandleA(const char* name);
__declspec(dllimport) void* __stdcall GetProcAddress(void* module, const char* name);
}

namespace rulecanvas::test {

/// Calls `function` with a stack that stands `offset` bytes, a multiple of 4, below a multiple of 16: callers built by
/// this compiler align it to 4 bytes only.
void CallAtStackOffset(void(__cdecl* function)(), unsigned offset);

} // namespace rulecanvas::test
