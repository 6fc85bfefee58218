#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "platform/Bundle.h"

namespace glossmill {

/// A bundle with the given texts and no resources; a key without a text is its own text.
class FakeBundle : public Bundle {
 public:
  using Texts = std::map<std::string, std::string, std::less<>>;

  explicit FakeBundle(Texts texts = {}) : m_texts(std::move(texts)) {}

  std::string localizedString(std::string_view key) const override {
    const auto found = m_texts.find(key);
    return found == m_texts.end() ? std::string(key) : found->second;
  }
  Result<std::string> resource(std::string_view, std::string_view) const override {
    return Error{"There is no such resource."};
  }

 private:
  Texts m_texts;
};

/// The statuses of a user who reads German.
inline FakeBundle germanBundle() {
  return FakeBundle({{"Incomplete", "Unvollständig"},
                     {"Complete", "Vollständig"},
                     {"Automatic", "Automatisch"},
                     {"Ignored", "Ignoriert"},
                     {"%ld missing", "Es fehlen %ld"}});
}

}  // namespace glossmill
