#pragma once

#include <deque>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "host/QVDriver.h"

namespace qv {

/// A device with the variables that a test gives it.
class FakeDriver : public QVDriver {
 public:
  std::wstring name = L"R$DISC_Tariff";
  std::bitset<34> classes{1};
  std::set<std::wstring> closed;       ///< the keys that can't be opened
  std::set<std::wstring> undescribed;  ///< the keys of which there is nothing to be said
  bool throws = false;                 ///< when it is asked what a variable is
  int open = 0;                        ///< how many variables are open now

  /// Adds a variable behind the others, whatever its key.
  void Add(const std::wstring& key, const std::wstring& variable,
           const std::string& description = "Energy", std::bitset<34> itsClasses = {1}) {
    m_kept.push_back({key, variable, description, itsClasses});
    m_variables[key] = &m_kept.back();
  }

  const wchar_t* Name() override { return name.c_str(); }
  const std::bitset<34>& VariableClasses() override { return classes; }

  bool OpenVariable(const wchar_t* key, void** handle) override {
    const auto found = m_variables.find(key);
    if (found == m_variables.end() || closed.contains(key)) {
      return false;
    }
    *handle = const_cast<void*>(found->second);
    ++open;
    return true;
  }

  void CloseVariable(void** handle) override {
    *handle = nullptr;
    --open;
  }

  bool GetVariableInfo(void* handle, VariableInfo* info, int /*detail*/) override {
    if (throws) {
      throw std::runtime_error("the device is gone");
    }
    const Kept& kept = *static_cast<const Kept*>(handle);
    if (undescribed.contains(kept.key)) {
      return false;
    }
    *info = {kept.variable.c_str(), kept.description.c_str(), kept.classes};
    return true;
  }

  iterator VariablesBegin() override { return m_variables.begin(); }
  iterator VariablesEnd() override { return m_variables.end(); }

 private:
  struct Kept {
    std::wstring key;
    std::wstring variable;
    std::string description;
    std::bitset<34> classes;
  };

  std::deque<Kept> m_kept;
  Variables m_variables;
};

}  // namespace qv
