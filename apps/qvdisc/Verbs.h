#pragma once

#include <string>
#include <vector>

#include "apps/qvdisc/Arguments.h"
#include "apps/qvdisc/Outcome.h"
#include "apps/qvdisc/StreamClipboard.h"
#include "checks/InstallationCheck.h"
#include "discriminator/DiscriminatorDirectory.h"
#include "host/Host.h"
#include "host/Progress.h"
#include "host/Prompter.h"
#include "host/QVDriverSupport.h"
#include "manager/DiscriminatorClipboard.h"
#include "manager/DiscriminatorList.h"
#include "tools/Files.h"

/// What the verbs of the program do, each in its own file. The outcome tells how one ended.
namespace qvdisc {

/// Takes what a call can name discriminators by into the outcome: the stem of every file, listed or
/// not, and then the names. Reads no file.
void Names(const qv::DiscriminatorDirectory& directory, Outcome& outcome);

/// Takes the document of the discriminator with this stem into the outcome.
void Show(const qv::DiscriminatorDirectory& directory, const QVWideString& stem, Outcome& outcome);

/// Makes the index files of the discriminators with these stems anew.
void Index(const qv::DiscriminatorDirectory& directory, const std::vector<QVWideString>& stems,
           qv::Progress& progress, Outcome& outcome);

/// Takes the payload of the rows into the outcome; `clipboard` puts it into `stream`.
void Copy(const qv::DiscriminatorClipboard& clipboard, const std::vector<int>& rows,
          const StreamClipboard& stream, Outcome& outcome);

/// Makes new discriminators of what is on the clipboard.
void Paste(qv::DiscriminatorClipboard& clipboard, Outcome& outcome);

/// What the editor of a discriminator works with when nobody sits at it.
struct Editing {
  const qv::Host& host;
  qv::Files& files;
  qv::Prompter& prompter;
  const QVDriverSupport& drivers;
  const Arguments& call;
};

/// Makes a new discriminator with the fields of the call.
void Add(qv::DiscriminatorList& list, const Editing& editing, Outcome& outcome);

/// Changes the fields that the call gives, of the first of the rows.
void Modify(qv::DiscriminatorList& list, const std::vector<int>& rows, const Editing& editing,
            Outcome& outcome);

/// Lists or changes the hour types of the first of the rows, as the call says.
void HourTypes(qv::DiscriminatorList& list, const std::vector<int>& rows, const Editing& editing,
               Outcome& outcome);

/// The same for its day types.
void DayTypes(qv::DiscriminatorList& list, const std::vector<int>& rows, const Editing& editing,
              Outcome& outcome);

/// Lists, changes or orders the conditions of the first of the rows, as the call says.
void Conditions(qv::DiscriminatorList& list, const std::vector<int>& rows, const Editing& editing,
                Outcome& outcome);

/// Gives dates of the calendar of the first of the rows a day type, or takes it from them, as the
/// call says.
void Mark(qv::DiscriminatorList& list, const std::vector<int>& rows, const Editing& editing,
          Outcome& outcome);

/// Removes the discriminators of the rows, after the question of the rules.
void Remove(qv::DiscriminatorList& list, const std::vector<int>& rows, qv::Prompter& prompter,
            Outcome& outcome);

/// Evaluates the expression, as a condition is; the outcome tells the result, or why there is none.
void Eval(const std::wstring& expression, const QVDriverSupport& drivers, const QVLoadString& texts,
          Outcome& outcome);

/// Tells what is wrong with the installation, or with those of its files that the call names.
void Check(const qv::InstallationToCheck& installation, const Arguments& call,
           qv::Progress& progress, Outcome& outcome);

}  // namespace qvdisc
