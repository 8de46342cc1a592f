/// Takes the place of rulecanvas::platform::Pause.
extern "C" void __wrap__ZN10rulecanvas8platform5PauseEi(int milliseconds);

extern "C" void __wrap__ZN10rulecanvas8platform5PauseEi(int /*milliseconds*/) {}
