#pragma once

#include <QString>

class QLineEdit;

namespace qv {

/// Lets no more than `maxLength` characters be typed or pasted into `edit`; what is too much is cut
/// off the insertion. 0 means no limit. Characters that a document can't hold are never accepted.
void LimitTyping(QLineEdit* edit, int maxLength);

/// Shows a text that was loaded. If it is longer than may be typed it stays as it is, and the user
/// can only make it shorter.
void SetLoadedText(QLineEdit* edit, const QString& text);

/// The same for the name of what is edited: all of it is selected, so that typing replaces it.
void SetLoadedName(QLineEdit* edit, const QString& name);

}  // namespace qv
