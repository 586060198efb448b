// Brings the management database into being, up to date and into order, before anything reads it.
#include <cstdio>
#include <exception>

#include "libvelm/copies.h"
#include "libvelm/places.h"

int main() {
  try {
    Velm::BringIntoOrder(Velm::Places().database);
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
