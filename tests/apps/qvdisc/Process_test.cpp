// The program as its users start it: a process of its own, from a shell.
#include <gmock/gmock.h>

#include <sys/wait.h>

#include <cstdio>

#include "tests/apps/qvdisc/CommandLine.h"

namespace qvdisc {
namespace {

using testing::HasSubstr;
using testing::Not;

/// Runs `script` in bash with the program as $QVDISC and the installation as $DIR.
class ProcessTest : public CommandLine {
 protected:
  Ended Bash(const std::string& script) const {
    const std::string file = (scripts.Path() / "script").string();
    std::ofstream(file) << "export QVDISC='" << QVDISC_FILE << "' DIR='"
                        << directory.Path().string() << "' LC_ALL=C\n"
                        << script;
    std::FILE* pipe = popen(("bash '" + file + "' 2>'" + file + ".err'").c_str(), "r");
    Ended ended;
    char piece[4096];
    for (std::size_t size = 0; pipe && (size = std::fread(piece, 1, sizeof piece, pipe)) > 0;) {
      ended.output.append(piece, size);
    }
    const int status = pclose(pipe);
    EXPECT_TRUE(WIFEXITED(status));
    ended.status = WEXITSTATUS(status);
    ended.errors = qv::FileBytes(file + ".err");
    return ended;
  }

  qv::TemporaryDirectory scripts;
};

/// The verbs whose output is the same each time, as text and as JSON.
TEST_F(ProcessTest, PrintsWhatTheCallPrints) {
  const std::vector<std::vector<std::string>> calls = {{"list"},
                                                       {"show", dayAndNight},
                                                       {"show", station},
                                                       {"copy", station, dayAndNight},
                                                       {"index", tariff2},
                                                       {"check"},
                                                       {"check", station},
                                                       {"remove", station, "--no"},
                                                       {"add", "--name", "a.b"},
                                                       {"modify", "none", "--name", "n"},
                                                       {"paste"}};
  for (auto call : calls) {
    for (const bool json : {false, true}) {
      if (json) {
        call.push_back("--json");
      }
      std::string line = "\"$QVDISC\"";
      for (const std::string& word : call) {
        line += " '" + word + "'";
      }
      const Ended expected = Do(call);
      const Ended ended = Bash(line + " --installation \"$DIR\" </dev/null");
      EXPECT_EQ(ended.status, expected.status) << line;
      EXPECT_EQ(ended.output, expected.output) << line;
      EXPECT_EQ(ended.errors, expected.errors) << line;
    }
  }
}

TEST_F(ProcessTest, RunsFromADirectoryOfAnyName) {
  const Ended ended = Bash(
      "mkdir -p \"$DIR/ñ q/bin\" \"$DIR/ñ q/languages\"\n"
      "cp \"$QVDISC\" \"$DIR/ñ q/bin\"; cp '" LANGUAGES_FOLDER
      "'/*.txt \"$DIR/ñ q/languages\"\n"
      "LD_LIBRARY_PATH=$(dirname \"$QVDISC\")/../lib \"$DIR/ñ q/bin/qvdisc\" list --installation "
      "\"$DIR\"");
  EXPECT_EQ(ended.status, 0) << ended.errors;
}

TEST_F(ProcessTest, AConfigurationThatTheDiskHasNoRoomForIsGivenBack) {
  const Ended ended = Bash(
      "ulimit -f 2\n"
      "\"$QVDISC\" remove 'Day and night' --yes --installation \"$DIR\"");
  EXPECT_EQ(ended.status, 1);
  EXPECT_THAT(ended.output, testing::StartsWith("<?xml"));
  EXPECT_THAT(ended.output, HasSubstr("</configuration>"));
  EXPECT_THAT(ended.errors, HasSubstr("its content is written to standard output"));
}

TEST_F(ProcessTest, HelpThatCannotBeWrittenIsAFailure) {
  EXPECT_EQ(Bash("\"$QVDISC\" --help >/dev/full").status, 1);
  EXPECT_EQ(Bash("\"$QVDISC\" --manual-page >/dev/full").status, 1);
}

TEST_F(ProcessTest, TheLocaleChoosesTheLanguage) {
  EXPECT_THAT(Bash("LC_ALL=es_ES.UTF-8 \"$QVDISC\" list --installation \"$DIR\"").output,
              testing::StartsWith("Nombre"));
  EXPECT_THAT(Bash("LC_ALL=es_ES.UTF-8 \"$QVDISC\" --help").output,
              HasSubstr("\nUso: qvdisc [OPCIONES] VERBO\n"));
  EXPECT_THAT(Bash("LC_ALL= LC_MESSAGES= LANG=es \"$QVDISC\" list --installation \"$DIR\"").output,
              testing::StartsWith("Nombre"));
}

TEST_F(ProcessTest, AWrongCallEndsWith2) {
  const Ended ended = Bash("\"$QVDISC\" list --installation $'\\xff\\xfe'");
  EXPECT_EQ(ended.status, 2);
  EXPECT_THAT(ended.errors, testing::StartsWith("qvdisc: "));
}

TEST_F(ProcessTest, AClosedPipeDoesNotEndItsWork) {
  const Ended ended = Bash(
      "\"$QVDISC\" remove 'Day and night' --yes --json --installation \"$DIR\" | true\n"
      "echo ${PIPESTATUS[0]}");
  EXPECT_FALSE(std::filesystem::exists(File(dayAndNight + ".xdct")));
  EXPECT_THAT(Read("configuration.xml"), Not(HasSubstr("3cb7ab9e")));
  // Whether the reader had gone before the writer came is a matter of luck.
  EXPECT_TRUE(ended.output == "0\n" || ended.output == "1\n") << ended.output;
}

TEST_F(ProcessTest, OutputThatCannotBeWrittenIsTold) {
  for (const char* where : {">/dev/full", ">&-"}) {
    const Ended ended = Bash(std::string("\"$QVDISC\" list --installation \"$DIR\" ") + where);
    EXPECT_EQ(ended.status, 1) << where;
    EXPECT_THAT(ended.errors, HasSubstr("Not all of the output could be written"));
  }
}

TEST_F(ProcessTest, AClosedInputIsNoPayload) {
  EXPECT_EQ(Bash("\"$QVDISC\" paste --installation \"$DIR\" <&-").status, 1);
}

TEST_F(ProcessTest, CopiesThroughAPipeIntoAnotherInstallation) {
  const Ended ended = Bash(
      "mkdir \"$DIR/other\"\n"
      "\"$QVDISC\" copy 'Day and night' --installation \"$DIR\" |"
      " \"$QVDISC\" paste --installation \"$DIR/other\" &&"
      " \"$QVDISC\" check --installation \"$DIR/other\"");
  EXPECT_EQ(ended.status, 1) << "without a configuration there are no entries";
  EXPECT_THAT(ended.output, HasSubstr("has no entry in the device groups\n1 fault in 1 file"));
}

TEST_F(ProcessTest, BashCompletesVerbsOptionsValuesAndDiscriminators) {
  const std::string complete =
      "source <(\"$QVDISC\" --bash-completion)\n"
      "qvdisc() { \"$QVDISC\" \"$@\"; }\n"
      "complete_line() { COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); _qvdisc;"
      " printf '%s\\n' \"${COMPREPLY[@]}\"; }\n";
  EXPECT_EQ(Bash(complete + "complete_line qvdisc s").output, "show\n");
  EXPECT_EQ(Bash(complete + "complete_line qvdisc modify --ty").output, "--type\n");
  EXPECT_EQ(Bash(complete + "complete_line qvdisc modify --type S").output, "SLOTS\n");
  EXPECT_EQ(Bash(complete + "complete_line qvdisc list --installation \"${DIR%?}\"").output,
            directory.Path().string() + "\n");
  for (const char* installation : {"--installation \"$DIR\"", "--installation = \"'$DIR'\""}) {
    EXPECT_EQ(Bash(complete + "complete_line qvdisc show " + installation + " 3cb").output,
              dayAndNight + "\n");
  }
  EXPECT_EQ(Bash(complete + "complete_line qvdisc modify --type = C").output, "CONDITIONS\n");
  for (const char* place : {"cd \"$DIR\"\n", "export QVDISC_INSTALLATION=\"$DIR\"\n"}) {
    EXPECT_EQ(Bash(complete + place + "complete_line qvdisc modify 'Day'").output,
              "Day and night\n");
  }
  EXPECT_EQ(Bash(complete + "complete_line qvdisc show --installation /nowhere 3cb").output, "\n");
  EXPECT_EQ(Bash(complete + "cd \"$DIR\"; complete_line qvdisc list ''").output, "\n");
  EXPECT_EQ(Bash(complete + "complete_line qvdisc n").output, "\n") << "names is for completion";
}

TEST_F(ProcessTest, LinksNoQt) {
  const Ended ended = Bash("ldd \"$QVDISC\"");
  EXPECT_EQ(ended.status, 0) << ended.errors;
  EXPECT_THAT(ended.output, HasSubstr("libQVHost"));
  EXPECT_THAT(ended.output, Not(HasSubstr("Qt")));
}

}  // namespace
}  // namespace qvdisc
