#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "xcode/SyntaxError.h"

namespace glossmill {

/// A property list, in the old syntax or in XML, as one value with all that is inside. A text that is not correct gives
/// what stands in front of the mistake, and the mistake. docs/xcode/property-list.md says what is taken.
class PropertyList {
 public:
  enum class Kind : std::uint8_t { None, Dictionary, Array, Text, Data };
  class Value;
  class Items;
  class Entries;

  PropertyList() = default;
  /// Takes the UTF-8 text over.
  explicit PropertyList(std::string text);

  /// Of the kind None when there is nothing. Values point to the list and live as long as it stays where it is.
  Value root() const;
  const std::optional<SyntaxError>& error() const { return m_error; }

 private:
  friend class PropertyListBuilder;

  /// The values in the order of the text, each followed by what is inside; in a dictionary, keys and values in turn.
  struct Node {
    std::uint32_t begin = 0;  ///< of its text, in m_text or m_unescaped
    std::uint32_t length = 0;
    std::uint32_t next = 0;  ///< the node behind all that is inside this one
    Kind kind = Kind::None;
    bool isUnescaped = false;
  };

  std::string_view textOf(const Node& node) const;

  std::string m_text;
  std::string m_unescaped;  ///< texts that are spelled in another way than they read
  std::vector<Node> m_nodes;
  std::optional<SyntaxError> m_error;
};

/// One value of a list. Every question may be put to every kind: what is not there is None, and empty.
class PropertyList::Value {
 public:
  Value() = default;

  Kind kind() const { return m_list ? m_list->m_nodes[m_node].kind : Kind::None; }
  explicit operator bool() const { return kind() != Kind::None; }

  /// A text or, of data, the digits as they are spelled: hexadecimal, in XML base 64.
  std::string_view text() const { return m_list ? m_list->textOf(m_list->m_nodes[m_node]) : std::string_view(); }
  /// The last value of this key. Looks at every key.
  Value operator[](std::string_view key) const;
  /// Those of an array.
  Items items() const;
  /// Those of a dictionary.
  Entries entries() const;

 private:
  friend class PropertyList;
  Value(const PropertyList& list, std::uint32_t node) : m_list(&list), m_node(node) {}

  Value following() const { return {*m_list, m_list->m_nodes[m_node].next}; }
  Value firstInside() const { return {*m_list, m_node + 1}; }

  const PropertyList* m_list = nullptr;
  std::uint32_t m_node = 0;
};

class PropertyList::Items {
 public:
  class Iterator {
   public:
    explicit Iterator(Value at) : m_at(at) {}
    Value operator*() const { return m_at; }
    Iterator& operator++() {
      m_at = m_at.following();
      return *this;
    }
    bool operator!=(const Iterator& other) const { return m_at.m_node != other.m_at.m_node; }

   private:
    Value m_at;
  };

  Items(Value first, Value end) : m_first(first), m_end(end) {}
  Iterator begin() const { return Iterator(m_first); }
  Iterator end() const { return Iterator(m_end); }

 private:
  Value m_first;
  Value m_end;
};

class PropertyList::Entries {
 public:
  struct Entry {
    std::string_view key;
    Value value;
  };

  class Iterator {
   public:
    explicit Iterator(Value at) : m_at(at) {}
    Entry operator*() const { return {m_at.text(), m_at.following()}; }
    Iterator& operator++() {
      m_at = m_at.following().following();
      return *this;
    }
    bool operator!=(const Iterator& other) const { return m_at.m_node != other.m_at.m_node; }

   private:
    Value m_at;
  };

  Entries(Value first, Value end) : m_first(first), m_end(end) {}
  Iterator begin() const { return Iterator(m_first); }
  Iterator end() const { return Iterator(m_end); }

 private:
  Value m_first;
  Value m_end;
};

}  // namespace glossmill
