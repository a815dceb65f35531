#include "hostkit/ui/VocabularyList.h"

#include <QHeaderView>

#include "hostkit/ExpressionVocabulary.h"
#include "toolkit/Caption.h"
#include "toolkit/Strings.h"
#include "toolkit/Texts.h"

namespace qv {

VocabularyList::VocabularyList(const QVLoadString& texts, QWidget* parent) : EntryTree(parent) {
  setRootIsDecorated(false);
  setHeaderLabels({HostText(texts, Text::WizardForm), HostText(texts, Text::WizardMeaning)});
  for (const ExpressionWord& word : ExpressionVocabulary()) {
    const QString help = HostText(texts, word.help);
    auto* row = new QTreeWidgetItem(this, {QString::fromWCharArray(word.form), help});
    row->setToolTip(1, PlainToolTip(help));
    MakeEntry(*row, QString::fromWCharArray(word.text));
  }
  resizeColumnToContents(0);
}

}  // namespace qv
