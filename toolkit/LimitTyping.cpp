#include "toolkit/LimitTyping.h"

#include <QLineEdit>
#include <QValidator>
#include <algorithm>
#include <limits>

#include "toolkit/Strings.h"
#include "tools/XmlText.h"

namespace qv {
namespace {

/// Cuts insertions. Qt's own limit isn't used, because it also cuts what the program sets.
class InsertionLimit : public QValidator {
 public:
  InsertionLimit(QLineEdit* edit, int maxLength)
      : QValidator(edit), m_edit(edit), m_maxLength(maxLength), m_length(edit->text().size()) {
    connect(edit, &QLineEdit::textChanged, this,
            [this](const QString& text) { m_length = text.size(); });
  }

  State validate(QString& input, int& cursor) const override {
    if (!IsXmlText(input.toStdWString())) {
      return Invalid;
    }
    if (!m_edit->isRedoAvailable()) {  // what Undo brings back stays as it was
      CutInsertion(input, cursor);
    }
    return Acceptable;
  }

 private:
  /// The insertion ends at the cursor.
  void CutInsertion(QString& input, int& cursor) const {
    const auto longest = std::max<qsizetype>(m_maxLength, m_length);
    qsizetype excess = std::min<qsizetype>(input.size() - longest, cursor);
    if (m_maxLength == 0 || excess <= 0) {
      return;
    }
    const qsizetype start = cursor - excess;
    if (start > 0 && input[start - 1].isHighSurrogate()) {
      ++excess;  // not half of a character
    }
    cursor -= static_cast<int>(excess);
    input.remove(cursor, excess);
  }

  QLineEdit* m_edit;
  int m_maxLength;
  qsizetype m_length;  ///< of the text before the change that is validated
};

}  // namespace

void LimitTyping(QLineEdit* edit, int maxLength) {
  edit->setMaxLength(std::numeric_limits<int>::max());  // by itself an edit cuts at 32767
  edit->setValidator(new InsertionLimit(edit, maxLength));
}

void SetLoadedText(QLineEdit* edit, const QString& text) {
  const QValidator* limit = edit->validator();
  edit->setValidator(nullptr);
  edit->setText(text);
  edit->setCursorPosition(0);  // a long text is read from its start
  edit->setValidator(limit);
}

void SetLoadedName(QLineEdit* edit, const QString& name) {
  SetLoadedText(edit, name);
  const auto length = static_cast<int>(name.size());
  edit->setSelection(length, -length);  // backwards: a long name is read from its start
}

}  // namespace qv
