#pragma once

#include <cstddef>
#include <vector>

namespace orvinel {

// Identifiers from data files go up to here, so that one broken line cannot eat the memory.
inline constexpr int largestIdentifier = 65535;

// Records indexed by the identifier in the data files. Slot 0 is always there; numbers that no line fills are
// default records.
template <typename Record>
class IndexedTable {
  public:
    IndexedTable() : records_(1) {}

    int highest() const { return static_cast<int>(records_.size()) - 1; }
    bool has(int id) const { return id >= 0 && id <= highest(); }

    // Valid for 0..highest().
    const Record& operator[](int id) const { return records_[static_cast<size_t>(id)]; }
    Record& operator[](int id) { return records_[static_cast<size_t>(id)]; }

    // The record of `id`, 0..largestIdentifier (the caller has checked); grows the table to it, keeping what
    // is there.
    Record& grow(int id) {
        if (id > highest())
            records_.resize(static_cast<size_t>(id) + 1);
        return records_[static_cast<size_t>(id)];
    }
    // Appends a record and returns its index.
    int append(Record record) {
        records_.push_back(std::move(record));
        return highest();
    }
    void reset() { records_.assign(1, Record()); }

    auto begin() { return records_.begin(); }
    auto end() { return records_.end(); }
    auto begin() const { return records_.begin(); }
    auto end() const { return records_.end(); }

    bool operator==(const IndexedTable&) const = default;

  private:
    std::vector<Record> records_;
};

// A list whose first element has index 1.
template <typename Element>
class List1 {
  public:
    int count() const { return static_cast<int>(elements_.size()); }
    bool empty() const { return elements_.empty(); }
    bool has(int index) const { return index >= 1 && index <= count(); }

    // Valid for 1..count().
    const Element& operator[](int index) const { return elements_[static_cast<size_t>(index) - 1]; }
    Element& operator[](int index) { return elements_[static_cast<size_t>(index) - 1]; }

    // Returns the new element's index.
    int append(Element element) {
        elements_.push_back(std::move(element));
        return count();
    }
    void clear() { elements_.clear(); }
    void reserve(size_t count) { elements_.reserve(count); }

    auto begin() { return elements_.begin(); }
    auto end() { return elements_.end(); }
    auto begin() const { return elements_.begin(); }
    auto end() const { return elements_.end(); }

    bool operator==(const List1&) const = default;

  private:
    std::vector<Element> elements_;
};

} // namespace orvinel
