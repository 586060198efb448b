#include "stand_ins.h"

#include <dlfcn.h>
#include <elf.h>
#include <link.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

constexpr std::size_t Page = 65536;  // the largest that a kernel for these processors uses
constexpr std::size_t Room = 4096;   // zeros behind the name, for what is taken for data

// As much of a library as the loader reads: one name, with zeros at its address.
struct Image {
  ElfW(Ehdr) header;
  ElfW(Phdr) segments[3];
  ElfW(Dyn) dynamic[6];
  std::uint32_t hash[5];  // one bucket with the one symbol, 1; no symbol is behind it
  ElfW(Sym) symbols[2];   // the first is none, always
  char names[4096];
};

void describeSegments(Image& image) {
  ElfW(Phdr)& load = image.segments[0];
  load.p_type = PT_LOAD;
  load.p_flags = PF_R | PF_W;
  load.p_filesz = sizeof(Image);
  load.p_memsz = sizeof(Image) + Room;
  load.p_align = Page;
  ElfW(Phdr)& dynamic = image.segments[1];
  dynamic.p_type = PT_DYNAMIC;
  dynamic.p_flags = PF_R | PF_W;
  dynamic.p_offset = dynamic.p_vaddr = dynamic.p_paddr = offsetof(Image, dynamic);
  dynamic.p_filesz = dynamic.p_memsz = sizeof(image.dynamic);
  dynamic.p_align = alignof(ElfW(Dyn));
  // A library that does not say so is taken for one that runs code on the stack, which newer loaders refuse.
  ElfW(Phdr)& stack = image.segments[2];
  stack.p_type = PT_GNU_STACK;
  stack.p_flags = PF_R | PF_W;
}

// What the loader wants to know of this processor it is told as of this program, which it has loaded already.
bool describeFile(Image& image) {
  std::FILE* const own = std::fopen("/proc/self/exe", "rbe");
  if (own == nullptr) return false;
  const bool read = std::fread(&image.header, sizeof(image.header), 1, own) == 1;
  std::fclose(own);
  image.header.e_type = ET_DYN;
  image.header.e_entry = 0;
  image.header.e_phoff = offsetof(Image, segments);
  image.header.e_phentsize = sizeof(ElfW(Phdr));
  image.header.e_phnum = sizeof(image.segments) / sizeof(image.segments[0]);
  image.header.e_shoff = 0;
  image.header.e_shnum = 0;
  image.header.e_shstrndx = 0;
  return read;
}

void describeName(Image& image, const std::string& name) {
  const ElfW(Dyn) dynamic[] = {{DT_HASH, {offsetof(Image, hash)}}, {DT_SYMTAB, {offsetof(Image, symbols)}},
                               {DT_SYMENT, {sizeof(ElfW(Sym))}},   {DT_STRTAB, {offsetof(Image, names)}},
                               {DT_STRSZ, {sizeof(image.names)}},  {DT_NULL, {0}}};
  std::memcpy(static_cast<void*>(image.dynamic), static_cast<const void*>(dynamic), sizeof(dynamic));
  const std::uint32_t hash[] = {1, 2, 1, 0, 0};
  std::memcpy(image.hash, hash, sizeof(hash));
  std::memcpy(image.names + 1, name.c_str(), name.size() + 1);
  ElfW(Sym)& symbol = image.symbols[1];
  symbol.st_name = 1;
  symbol.st_info = ELF32_ST_INFO(STB_GLOBAL, STT_NOTYPE);
  symbol.st_shndx = 1;
  symbol.st_value = sizeof(Image);
}

// The file is needed until it is loaded only.
bool loadFile(const Image& image, std::string& reason) {
  char path[] = "/tmp/verify.XXXXXX";
  const int file = mkstemp(path);
  if (file < 0) {
    reason = std::string("no file can be made in /tmp: ") + std::strerror(errno);
    return false;
  }
  const bool written = write(file, &image, sizeof(image)) == static_cast<ssize_t>(sizeof(image));
  close(file);
  const void* const library = written ? dlopen(path, RTLD_NOW | RTLD_GLOBAL) : nullptr;
  if (library == nullptr) reason = written ? dlerror() : "the disk of /tmp is full";
  unlink(path);
  return library != nullptr;
}

}  // namespace

bool standIn(const std::string& name, std::string& reason) {
  static Image image;
  image = Image();
  reason = "the name is too long";
  if (name.size() + 2 > sizeof(image.names)) return false;
  reason = "this program cannot read itself";
  if (!describeFile(image)) return false;
  describeSegments(image);
  describeName(image, name);
  return loadFile(image, reason);
}
