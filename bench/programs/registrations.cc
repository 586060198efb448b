// registrations TIMES: reads the trap registrations as the module does, by the management library, and looks
// at each; no line is written and no page's value made. Prints how many nanoseconds one time took.
#include "bare.h"
#include "libvelm/app_config.h"
#include "libvelm/places.h"
#include "libvelm/store.h"
#include "platform/List.h"
#include "platform/MemoryMgmt.h"

namespace {

volatile unsigned long seen = 0;  // so that the elements are read

void readAll(Velm::AppConfig& config) {
  TarnAbstract::List<Velm::TrapRegistration, 4> list(
      TarnAbstract::TarnMemoryMgmt::getSystemTransientObjHeap());
  if (TarnAbstract::Result::IsFailed(config.getTrapRegistrations(list))) bare::stop("getTrapRegistrations");
  for (unsigned int index = 0; index < list.Size(); ++index) {
    Velm::TrapRegistration registration;
    list.Item(index, registration);
    seen = seen + registration.getPort();
  }
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) return 2;
  const int times = std::atoi(arguments[1]);
  const Velm::Places places;
  Velm::Store store(places.database);
  const TarnAbstract::sp<Velm::AppConfig> config(new Velm::AppConfig(store, places, "bench"));
  readAll(*config.operator->());  // the first reading opens the file
  const double start = bare::nanoseconds();
  for (int time = 0; time < times; ++time) readAll(*config.operator->());
  std::printf("%.1f\n", (bare::nanoseconds() - start) / times);
}
