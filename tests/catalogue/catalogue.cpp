// Prints every record description the bridge has, a line per field:
//   class field kind count columns element-class
// (classes by their simple names, "-" for no element class), so that the
// hostile-input tests build their inputs and check their results against the
// capacities and string fields the walker itself uses.
#include <cstdio>
#include <string>

#include "tests/catalogue/catalogue.h"

namespace {

const char* kind_name(kx::Kind k) {
  switch (k) {
    case kx::Kind::Int: return "int";
    case kx::Kind::SByte: return "sbyte";
    case kx::Kind::UByte: return "ubyte";
    case kx::Kind::String: return "string";
    case kx::Kind::StringUnicode: return "unicode";
    case kx::Kind::Bytes: return "bytes";
    case kx::Kind::ByteTable: return "bytetable";
    case kx::Kind::Ints: return "ints";
    case kx::Kind::Ints2: return "ints2";
    case kx::Kind::Record: return "record";
    case kx::Kind::Records: return "records";
    case kx::Kind::Records2: return "records2";
    case kx::Kind::Custom: return "custom";
  }
  return "?";
}

std::string simple(const char* cls) {
  std::string s = cls;
  return s.substr(s.rfind('/') + 1);
}

}  // namespace

int main() {
  const kx::CatalogueSpan all = kx::catalogue();
  for (std::size_t i = 0; i < all.size; ++i) {
    const kx::CatalogueRow& r = all.rows[i];
    std::printf("%s %s %s %u %u %s\n", simple(r.cls).c_str(), r.name, kind_name(r.kind), r.count, r.columns,
                r.elem != nullptr ? simple(r.elem).c_str() : "-");
  }
  return std::fflush(stdout) == 0 ? 0 : 1;
}
