// A plugin of the emulator QEMU: prints at the end how many instructions the program has executed, all its
// threads together. The few declarations are those of QEMU's interface for plugins, which Debian does not
// package.
#include <cstdint>
#include <cstdio>

extern "C" {
struct qemu_plugin_tb;
struct qemu_info_t;
void qemu_plugin_register_vcpu_tb_trans_cb(std::uint64_t id,
                                           void (*translated)(std::uint64_t, qemu_plugin_tb*));
void qemu_plugin_register_vcpu_tb_exec_inline(qemu_plugin_tb* block, int operation, void* counter,
                                              std::uint64_t value);
void qemu_plugin_register_atexit_cb(std::uint64_t id, void (*ended)(std::uint64_t, void*), void* data);
std::size_t qemu_plugin_tb_n_insns(const qemu_plugin_tb* block);
void qemu_plugin_outs(const char* text);

#define EXPORTED __attribute__((visibility("default")))
EXPORTED extern int qemu_plugin_version;
EXPORTED int qemu_plugin_install(std::uint64_t id, const qemu_info_t* info, int count, char** arguments);
}

int qemu_plugin_version = 1;

namespace {

constexpr int AddToCounter = 0;  // the interface's only operation
std::uint64_t executed = 0;

void countBlock(std::uint64_t, qemu_plugin_tb* block) {
  qemu_plugin_register_vcpu_tb_exec_inline(block, AddToCounter, &executed, qemu_plugin_tb_n_insns(block));
}

void print(std::uint64_t, void*) {
  char text[64];
  std::snprintf(text, sizeof(text), "instructions: %llu\n", static_cast<unsigned long long>(executed));
  qemu_plugin_outs(text);
}

}  // namespace

int qemu_plugin_install(std::uint64_t id, const qemu_info_t*, int, char**) {
  qemu_plugin_register_vcpu_tb_trans_cb(id, countBlock);
  qemu_plugin_register_atexit_cb(id, print, nullptr);
  return 0;
}
