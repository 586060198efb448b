// Brings the management database into being, or up to date, before anything reads it.
#include <cstdio>
#include <exception>

#include "libvelm/places.h"
#include "libvelm/store.h"

int main() {
  try {
    Velm::Store(Velm::Places().database).Read([](Velm::Database&) {});
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
