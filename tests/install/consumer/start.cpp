// Where a program without a run-time library of its own begins.
extern "C" __declspec(noreturn) void __cdecl exit(int code);

int main();

extern "C" void __cdecl Start() {
    exit(main());
}
