#include "elf_file.h"

#include <cxxabi.h>
#include <elf.h>
#include <link.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>

namespace {

using Header = ElfW(Ehdr);
using Section = ElfW(Shdr);
using Segment = ElfW(Phdr);

// Nothing in a damaged file is believed before it was compared with the file's size.
class Content {
 public:
  bool load(const std::string& path) {
    std::FILE* const stream = std::fopen(path.c_str(), "rbe");
    if (stream == nullptr) return false;
    char buffer[65536];
    std::size_t count = 0;
    while ((count = std::fread(buffer, 1, sizeof(buffer), stream)) > 0) bytes_.append(buffer, count);
    const bool complete = std::ferror(stream) == 0;
    std::fclose(stream);
    return complete;
  }

  bool empty() const { return bytes_.empty(); }

  bool has(std::size_t offset, std::size_t size) const {
    return offset <= bytes_.size() && size <= bytes_.size() - offset;
  }

  // count records from offset on; none when they are not all there.
  template <class Record>
  std::vector<Record> records(std::size_t offset, std::size_t count) const {
    std::vector<Record> found;
    if (offset > bytes_.size() || count > (bytes_.size() - offset) / sizeof(Record)) return found;
    found.resize(count);
    if (count > 0)
      std::memcpy(static_cast<void*>(found.data()), bytes_.data() + offset, count * sizeof(Record));
    return found;
  }

  template <class Record>
  std::vector<Record> records(const Section& section) const {
    return records<Record>(section.sh_offset, section.sh_size / sizeof(Record));
  }

  std::string text(const Section& section, std::size_t index) const {
    if (index >= section.sh_size || section.sh_offset > bytes_.size()) return "";
    const std::size_t start = section.sh_offset + index;
    if (start < section.sh_offset || start >= bytes_.size()) return "";
    return bytes_.substr(start, bytes_.find('\0', start) - start);
  }

 private:
  std::string bytes_;
};

class Reader {
 public:
  Reader(const Content& content, ElfFile& file) : content_(content), file_(file) {}

  // Whether it is a library for this processor, with names that can be read.
  bool read(std::string& reason) {
    if (!readHeader(reason)) return false;
    file_.complete = true;
    for (const Section& section : sections_) {
      if (section.sh_link >= sections_.size()) continue;
      const Section& texts = sections_[section.sh_link];
      if (section.sh_type == SHT_DYNAMIC) readNeeded(section, texts);
      if (section.sh_type == SHT_GNU_verneed) readVersions(section, texts);
      if (section.sh_type == SHT_GNU_versym) versionOf_ = content_.records<std::uint16_t>(section);
    }
    readSymbols(SHT_DYNSYM, file_.dynamicSymbols, true);
    readSymbols(SHT_SYMTAB, file_.internalSymbols, false);
    reason = "has no names that can be read: it is no library, or damaged";
    return !file_.dynamicSymbols.empty();
  }

 private:
  bool readHeader(std::string& reason) {
    reason = "is no library";
    const std::vector<Header> headers = content_.records<Header>(0, 1);
    if (headers.empty() || std::memcmp(headers[0].e_ident, ELFMAG, SELFMAG) != 0) return false;
    const Header& header = headers[0];
    reason = "is not for this processor";
    file_.forOtherProcessor = !isForThisProcessor(header);
    if (file_.forOtherProcessor) return false;
    reason = "is a program, and no library";
    if (header.e_type != ET_DYN) return false;
    return hasSegments(header, reason) && readSections(header, reason);
  }

  // The loader believes that all of them are in the file, and the program ends where one is not.
  bool hasSegments(const Header& header, std::string& reason) const {
    reason = "is damaged: it ends before its content does";
    if (header.e_phentsize != sizeof(Segment)) return false;
    const std::vector<Segment> segments = content_.records<Segment>(header.e_phoff, header.e_phnum);
    for (const Segment& segment : segments) {
      if (segment.p_type != PT_NULL && !content_.has(segment.p_offset, segment.p_filesz)) return false;
    }
    return !segments.empty();
  }

  // A library may do without.
  bool readSections(const Header& header, std::string& reason) {
    reason = "is damaged: its table of contents is not there";
    if (header.e_shnum == 0) return true;
    if (header.e_shentsize != sizeof(Section)) return false;
    sections_ = content_.records<Section>(header.e_shoff, header.e_shnum);
    return !sections_.empty();
  }

  // As the loader would judge: by what this program itself is.
  static bool isForThisProcessor(const Header& header) {
    Content own;
    if (!own.load("/proc/self/exe")) return true;
    const std::vector<Header> headers = own.records<Header>(0, 1);
    return !headers.empty() && headers[0].e_ident[EI_CLASS] == header.e_ident[EI_CLASS] &&
           headers[0].e_ident[EI_DATA] == header.e_ident[EI_DATA] && headers[0].e_machine == header.e_machine;
  }

  void readNeeded(const Section& section, const Section& texts) {
    for (const ElfW(Dyn) & entry : content_.records<ElfW(Dyn)>(section)) {
      if (entry.d_tag == DT_NEEDED) file_.needed.push_back(content_.text(texts, entry.d_un.d_val));
    }
  }

  // Each record says how far the next one is, and the last one 0: the loader believes no count either. In a
  // damaged file they may go round for ever; a whole one has no more than fit into its section.
  void readVersions(const Section& section, const Section& texts) {
    if (!content_.has(section.sh_offset, section.sh_size)) return;
    std::size_t left = section.sh_size / sizeof(ElfW(Verneed));
    std::size_t offset = section.sh_offset;
    for (; left > 0; --left) {
      const auto needs = content_.records<ElfW(Verneed)>(offset, 1);
      if (needs.empty()) return;
      readVersionsOfLibrary(offset + needs[0].vn_aux, texts, left);
      if (needs[0].vn_next == 0 || left == 0) return;
      offset += needs[0].vn_next;
    }
  }

  void readVersionsOfLibrary(std::size_t place, const Section& texts, std::size_t& left) {
    for (; left > 0; --left) {
      const auto version = content_.records<ElfW(Vernaux)>(place, 1);
      if (version.empty()) return;
      versions_[version[0].vna_other] = content_.text(texts, version[0].vna_name);
      if (version[0].vna_next == 0) return;
      place += version[0].vna_next;
    }
  }

  void readSymbols(unsigned int type, std::vector<Symbol>& symbols, bool withVersions) const {
    for (const Section& section : sections_) {
      if (section.sh_type != type || section.sh_link >= sections_.size()) continue;
      std::size_t index = 0;
      for (const ElfW(Sym) & entry : content_.records<ElfW(Sym)>(section)) {
        Symbol symbol = convert(entry, sections_[section.sh_link]);
        if (withVersions) symbol.version = versionAt(index);
        ++index;
        if (!symbol.name.empty()) symbols.push_back(symbol);
      }
    }
  }

  Symbol convert(const ElfW(Sym) & entry, const Section& texts) const {
    Symbol symbol;
    symbol.name = content_.text(texts, entry.st_name);
    symbol.value = entry.st_value;
    symbol.size = entry.st_size;
    symbol.defined = entry.st_shndx != SHN_UNDEF;
    symbol.weak = ELF32_ST_BIND(entry.st_info) == STB_WEAK;  // the same for both sizes of files
    symbol.isData = ELF32_ST_TYPE(entry.st_info) == STT_OBJECT;
    return symbol;
  }

  std::string versionAt(std::size_t index) const {
    if (index >= versionOf_.size()) return "";
    const auto version = versions_.find(versionOf_[index]);
    return version == versions_.end() ? "" : version->second;
  }

  const Content& content_;
  ElfFile& file_;
  std::vector<Section> sections_;
  std::vector<std::uint16_t> versionOf_;
  std::map<std::uint16_t, std::string> versions_;
};

}  // namespace

bool readElfFile(const std::string& path, ElfFile& file, std::string& reason) {
  Content content;
  errno = 0;
  if (!content.load(path)) {
    reason = std::string("cannot be read: ") + std::strerror(errno);
    return false;
  }
  reason = "is empty";
  return !content.empty() && Reader(content, file).read(reason);
}

std::string demangled(const std::string& name) {
  int status = 0;
  char* const text = abi::__cxa_demangle(name.c_str(), nullptr, nullptr, &status);
  if (text == nullptr) return name;
  std::string readable = text;
  std::free(text);  // NOLINT(cppcoreguidelines-no-malloc): that is how it is given
  return readable;
}
