// A library of another maker in the same process, which shares the compiler's runtime library with others and uses
// exceptions of its own.

extern "C" __declspec(dllexport) int ThrowAndCatch() {
    try {
        throw 1;
    } catch (int thrown) {
        return thrown;
    }
}
