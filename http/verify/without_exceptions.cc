// What the C++ library does when there is no memory left, or a text has no such place: it throws, and brings
// all that throwing takes into this program, and with it names of the C library that are newer than those
// that the module needs. Here each just ends the program, as a throw would where nobody catches.
#include <cstdio>
#include <cstdlib>
#include <new>

namespace {

[[noreturn]] void giveUp(const char* what) {
  std::fprintf(stderr, "verify: %s\n", what);
  std::abort();
}

}  // namespace

void* operator new(std::size_t size) {
  void* const memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) giveUp("there is no memory left");
  return memory;
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { std::free(memory); }

// The library calls them by these names.
// NOLINTBEGIN(cert-dcl58-cpp,cert-dcl50-cpp,bugprone-reserved-identifier)
namespace std {
void __throw_logic_error(const char* what) { giveUp(what); }
void __throw_length_error(const char* what) { giveUp(what); }
void __throw_out_of_range_fmt(const char* what, ...) { giveUp(what); }
void __throw_bad_alloc() { giveUp("there is no memory left"); }
void __throw_bad_array_new_length() { giveUp("too much memory is asked for"); }
void __glibcxx_assert_fail(const char* /*file*/, int /*line*/, const char* /*function*/,
                           const char* what) noexcept {
  giveUp(what);
}
}  // namespace std
// NOLINTEND(cert-dcl58-cpp,cert-dcl50-cpp,bugprone-reserved-identifier)
