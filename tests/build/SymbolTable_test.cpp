#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <regex>
#include <string>
#include <vector>

namespace {

struct ClosePipe {
  void operator()(std::FILE* pipe) const { pclose(pipe); }
};

/// The symbols that the library defines for others, demangled.
std::vector<std::string> ExportedSymbols() {
  const std::string command = std::string("nm -D --defined-only -C '") + LIBRARY_FILE + "'";
  const std::unique_ptr<std::FILE, ClosePipe> pipe(popen(command.c_str(), "r"));
  std::vector<std::string> symbols;
  char line[4096];
  while (pipe && std::fgets(line, sizeof line, pipe.get())) {
    const std::string text(line);
    // Behind the address, a blank, a letter and a blank.
    const std::size_t start = text.find(' ') + 3;
    symbols.push_back(text.substr(start, text.find_last_not_of('\n') + 1 - start));
  }
  return symbols;
}

bool BelongsToAnExportedClass(const std::string& symbol) {
  static const std::regex ours(
      "((typeinfo|typeinfo name|vtable) for |(non-)?virtual thunk to )?"
      "(CDlgSetupDiscriminators|CDlgFastSelection|CDlgSelectVarDiscriminatorVariables|QVDayCtrl)"
      "(::.*)?");
  return std::regex_match(symbol, ours);
}

TEST(SymbolTable, HoldsTheExportedClassesAndNothingElse) {
  const auto symbols = ExportedSymbols();
  ASSERT_FALSE(symbols.empty());
  for (const auto& symbol : symbols) {
    EXPECT_TRUE(BelongsToAnExportedClass(symbol)) << symbol;
  }
}

TEST(SymbolTable, HoldsWhatAHostNeedsOfTheManagerDialog) {
  const auto symbols = ExportedSymbols();
  for (const char* needed :
       {"CDlgSetupDiscriminators::DoModal()", "CDlgSetupDiscriminators::staticMetaObject",
        "CDlgSetupDiscriminators::~CDlgSetupDiscriminators()",
        "CDlgSetupDiscriminators::CDlgSetupDiscriminators(qv::XmlNode*, QWidget*)",
        "typeinfo for CDlgSetupDiscriminators", "vtable for CDlgSetupDiscriminators"}) {
    EXPECT_NE(std::find(symbols.begin(), symbols.end(), needed), symbols.end()) << needed;
  }
}

TEST(SymbolTable, HoldsWhatAHostNeedsOfTheFastSelection) {
  const auto symbols = ExportedSymbols();
  for (const char* needed :
       {"CDlgFastSelection::DoModal()", "CDlgFastSelection::staticMetaObject",
        "CDlgFastSelection::~CDlgFastSelection()", "CDlgFastSelection::SetMaxMinMonth(int, int)",
        "CDlgFastSelection::CDlgFastSelection(QWidget*, qv::XmlNode*, int)",
        "CDlgFastSelection::CDlgFastSelection(QWidget*, std::vector<unsigned int, "
        "std::allocator<unsigned int> >*, std::vector<QVBasicString<wchar_t, QVWideChar>, "
        "std::allocator<QVBasicString<wchar_t, QVWideChar> > >*, int)",
        "typeinfo for CDlgFastSelection", "vtable for CDlgFastSelection"}) {
    EXPECT_NE(std::find(symbols.begin(), symbols.end(), needed), symbols.end()) << needed;
  }
}

TEST(SymbolTable, HoldsWhatAHostNeedsOfTheDayDial) {
  const auto symbols = ExportedSymbols();
  for (const char* needed :
       {"QVDayCtrl::QVDayCtrl(QWidget*)", "QVDayCtrl::~QVDayCtrl()",
        "QVDayCtrl::SetBkColor(unsigned int)", "QVDayCtrl::SetColor(unsigned int)",
        "QVDayCtrl::Setup(unsigned char)", "QVDayCtrl::Setup(unsigned char const*, int)",
        "QVDayCtrl::Setup(qv::XmlNode const*, qv::XmlNode const*)", "QVDayCtrl::staticMetaObject",
        "typeinfo for QVDayCtrl", "vtable for QVDayCtrl"}) {
    EXPECT_NE(std::find(symbols.begin(), symbols.end(), needed), symbols.end()) << needed;
  }
}

}  // namespace
