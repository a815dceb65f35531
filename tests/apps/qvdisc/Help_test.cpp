// The help, the manual page and the completion, which come from one description.
#include <gmock/gmock.h>

#include <CLI/CLI.hpp>

#include "apps/qvdisc/FindingWords.h"
#include "apps/qvdisc/Pages.h"
#include "tests/apps/qvdisc/CommandLine.h"

namespace qvdisc {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr std::array verbs = {"list",   "show", "index",  "copy",   "paste", "add",
                              "modify", "mark", "unmark", "remove", "check"};

TEST(Help, OfTheProgramAndOfEachVerb) {
  const Ended program = Call({"--help"});
  EXPECT_EQ(program.status, 0);
  for (const std::string verb : verbs) {
    EXPECT_THAT(program.output, HasSubstr("\n  " + verb + " "));
    const Ended help = Call({verb, "--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(Call({verb, "-h"}).output, help.output);
    EXPECT_THAT(help.output, HasSubstr("Usage: qvdisc " + verb));
    EXPECT_THAT(help.output, HasSubstr("--installation DIR"));
    EXPECT_THAT(help.output, HasSubstr("\nExamples:\n  qvdisc " + verb + " "));
    EXPECT_THAT(help.output, HasSubstr("\nExit status:\n  0  done\n  1  refused"));
  }
  EXPECT_THAT(program.output, HasSubstr("\n  QVDISC_INSTALLATION  "));
  EXPECT_THAT(Call({"list", "-h"}).output, Not(HasSubstr("\nSTEM:\n")));
  EXPECT_THAT(Call({"show", "-h"}).output, HasSubstr("\nSTEM:\n  <id>.<name>"));
}

TEST(Help, OfACheckNamesEveryKindOfFinding) {
  const std::string help = Call({"check", "-h"}).output;
  for (int i = 0; i < static_cast<int>(qv::FindingKind::Count); ++i) {
    EXPECT_THAT(help, HasSubstr(std::string("\n  ") + KindName(qv::FindingKind{i}) + " "));
  }
  EXPECT_THAT(help, HasSubstr(" note: an embedded installation hides"));
}

TEST(Help, SpeaksSpanishIfTheCallOrTheSystemDoes) {
  const std::string help = Call({"modify", "-h", "--language", "es"}).output;
  EXPECT_THAT(help, HasSubstr("\nUso: qvdisc modify [OPCIONES] STEM\n"));
  EXPECT_THAT(help, HasSubstr("\nOpciones:\n  -h,--help                   Escribe esta ayuda"));
  EXPECT_THAT(help, HasSubstr("\nEstado de salida:\n"));
  EXPECT_THAT(help, Not(HasSubstr("Options")));
  EXPECT_EQ(Call({"modify", "--language=es", "-h"}).output, help);
  EXPECT_EQ(Call({"--language", "es", "modify", "-h"}).output, help);

  const char* const call[] = {"qvdisc", "modify", "-h"};
  const auto read = ReadArguments(static_cast<int>(std::size(call)), call, qv::Language::Spanish);
  EXPECT_EQ(std::get<commandline::EarlyEnd>(read).output, help);
  EXPECT_THAT(Call({"modify", "-h"}).output, Not(HasSubstr("Uso")));
}

TEST(Help, HasTheSameLinesInBothLanguages) {
  const auto lineCount = [](const std::string& text) {
    return std::count(text.begin(), text.end(), '\n');
  };
  for (const std::string verb : verbs) {
    EXPECT_EQ(lineCount(Call({verb, "-h"}).output),
              lineCount(Call({verb, "-h", "--language", "es"}).output));
  }
}

TEST(Help, TheLanguageMayStandBeforeTheVerb) {
  const qv::TemporaryDirectory directory;
  EXPECT_THAT(
      Call({"--language", "es", "list", "--installation", directory.Path().string()}).output,
      StartsWith("Nombre"));
}

TEST(Pages, Version) { EXPECT_EQ(Call({"--version"}).output, "qvdisc " QVDISC_VERSION "\n"); }

TEST(Pages, TheManualHasVerbsFindingsStatusEnvironmentAndExamples) {
  const Ended page = Call({"--manual-page"});
  EXPECT_EQ(page.status, 0);
  EXPECT_THAT(page.output, StartsWith(".TH QVDISC 1"));
  EXPECT_THAT(page.output, HasSubstr(".SS modify\n"));
  EXPECT_THAT(page.output, HasSubstr("\\fB\\-\\-type\\fR \\fISLOTS|CONDITIONS\\fR\n"));
  EXPECT_THAT(page.output, HasSubstr("\\fB\\-h,\\-\\-help\\fR\nPrint this help"));
  for (const char* heading : {"NAME", "SYNOPSIS", "OPTIONS", "VERBS", "STEM", "KINDS OF FINDING",
                              "EXIT STATUS", "ENVIRONMENT", "EXAMPLES"}) {
    EXPECT_THAT(page.output, HasSubstr(std::string("\n.SH ") + heading + "\n"));
  }
  EXPECT_THAT(page.output, HasSubstr("\n\\fBday\\-gaps\\fR\nnote: "));
  EXPECT_THAT(page.output, HasSubstr("\nqvdisc show \\(aqDay and night\\(aq \\-\\-json\n"));
}

TEST(Pages, TheManualSpeaksSpanish) {
  const std::string page = Call({"--language", "es", "--manual-page"}).output;
  EXPECT_THAT(page, HasSubstr("\n.SH ESTADO DE SALIDA\n"));
  EXPECT_THAT(page, HasSubstr("\n.SS modify\nCambia el nombre"));
}

/// A program with a verb that has verbs of its own.
class NestedVerbs : public testing::Test {
 protected:
  NestedVerbs() {
    CLI::App* outer = app.add_subcommand("outer", "Does things");
    outer->add_subcommand("first", "Does one thing")->add_flag("--one");
    outer->add_subcommand("second", "Does another");
    app.add_subcommand("secret", "Is for programs")->group("");
  }

  CLI::App app{"Does nothing", "program"};
};

TEST_F(NestedVerbs, HaveTheirWholeNamesInTheManual) {
  const std::string page = ManualPage(app, qv::Language::English);
  EXPECT_THAT(page, HasSubstr(".SS outer first\nDoes one thing.\n"));
  EXPECT_THAT(page, Not(HasSubstr("secret")));
}

TEST_F(NestedVerbs, AreCompleted) {
  const std::string script = BashCompletion(app);
  EXPECT_THAT(script, HasSubstr("_qvdisc_verbs='|outer|outer first|outer second|'\n"));
  EXPECT_THAT(script, HasSubstr("    '') _qvdisc_words \"outer --help\"; return ;;\n"));
  EXPECT_THAT(script, HasSubstr("    'outer') _qvdisc_words \"first second --help\"; return ;;\n"));
  EXPECT_THAT(script, HasSubstr("    'outer first') options=\"--help --one\" ;;\n"));
}

TEST(Pages, TheCompletionKnowsTheValuesOfOptions) {
  const Ended completion = Call({"--bash-completion"});
  EXPECT_EQ(completion.status, 0);
  EXPECT_THAT(completion.output, HasSubstr("--type) _qvdisc_words \"SLOTS CONDITIONS\""));
}

}  // namespace
}  // namespace qvdisc
