#pragma once

namespace rulecanvas::test {

/// A shared library that is loaded at run time and unloaded with this object.
class LoadedLibrary {
  public:
    explicit LoadedLibrary(const char* path);
    ~LoadedLibrary();
    LoadedLibrary(const LoadedLibrary&) = delete;
    LoadedLibrary& operator=(const LoadedLibrary&) = delete;

    /// Whether any library of that path is in memory.
    static bool IsInMemory(const char* path);

    bool IsLoaded() const { return library != nullptr; }
    /// Null when the library has no function of that name.
    void* Find(const char* function) const;

  private:
    void* library;
};

} // namespace rulecanvas::test
