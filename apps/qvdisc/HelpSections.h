#pragma once

#include <string>
#include <vector>

#include "hostkit/Language.h"

/// What the help and the manual page say beside verbs and options, in UTF-8.
namespace qvdisc {

/// The single words and headings.
struct HelpLabels {
  const char* usage;
  const char* options;
  const char* verb;
  const char* positionals;
  const char* required;
  const char* excludes;
  const char* optionGroup;
  const char* verbs;
  const char* help;  ///< the meaning of `--help`
  const char* name;  ///< from here on headings of the manual page
  const char* synopsis;
};

const HelpLabels& HelpWords(qv::Language language);

/// A line of a section: what stands in front, which may be empty, and what it means.
struct HelpItem {
  std::string term;
  std::string meaning;
};

/// A part of the help with its heading.
struct HelpSection {
  std::string heading;
  std::vector<HelpItem> items;
};

/// Calls as a section, one a line of `examples`.
HelpSection Examples(const std::string& examples, qv::Language language);

/// All sections for the manual page: STEMs, kinds of finding, exit status, environment, examples.
std::vector<HelpSection> ManualSections(qv::Language language);

/// What the help of the program ends with.
std::string ProgramFooter(qv::Language language);

/// What there is to tell of a verb behind its options.
struct VerbHelp {
  std::string examples;  ///< a call a line
  bool takesStems = false;
  bool tellsFindings = false;
};

/// What the help of a verb ends with.
std::string VerbFooter(const VerbHelp& verb, qv::Language language);

}  // namespace qvdisc
