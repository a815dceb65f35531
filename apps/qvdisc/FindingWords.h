#pragma once

#include <string>

#include "checks/Finding.h"
#include "hostkit/Language.h"

namespace qvdisc {

/// What JSON calls this kind of finding.
const char* KindName(qv::FindingKind kind);

/// What findings of this kind tell, in UTF-8.
const char* KindMeaning(qv::FindingKind kind, qv::Language language);

/// The finding as a sentence, without its file.
std::wstring Sentence(const qv::Finding& finding, qv::Language language);

}  // namespace qvdisc
