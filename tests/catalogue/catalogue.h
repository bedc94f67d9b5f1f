// The record descriptions' fields as plain rows, worked out at compile time
// (tests/catalogue/catalogue.cmake generates the list of every description).
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

#include "core/record.h"

namespace kx {

struct CatalogueRow {
  const char* cls;   // "orvane/str/diskarray/X"
  const char* name;  // the Java field
  Kind kind;
  uint32_t count;
  uint32_t columns;
  const char* elem;  // nested records' class, or null
};

template <std::size_t N>
struct CatalogueRows {
  CatalogueRow rows[N];
};

struct CatalogueSpan {
  const CatalogueRow* rows;
  std::size_t size;
};

// Every field of every record description (the generated catalogue_all.cpp).
CatalogueSpan catalogue();

template <std::size_t M>
constexpr std::size_t catalogue_size(const RecordDesc* const (&all)[M]) {
  std::size_t n = 0;
  for (const RecordDesc* d : all) n += d->field_count;
  return n;
}

template <std::size_t N, std::size_t M>
constexpr CatalogueRows<N> catalogue_rows(const RecordDesc* const (&all)[M]) {
  CatalogueRows<N> out{};
  std::size_t i = 0;
  for (const RecordDesc* d : all) {
    for (uint32_t k = 0; k < d->field_count; ++k) {
      const Field& f = d->fields[k];
      out.rows[i++] = CatalogueRow{d->cls, f.name, f.kind, f.count, f.columns,
                                   f.elem != nullptr ? f.elem->cls : nullptr};
    }
  }
  return out;
}

}  // namespace kx
