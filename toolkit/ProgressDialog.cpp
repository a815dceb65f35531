#include "toolkit/ProgressDialog.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "toolkit/Strings.h"
#include "toolkit/Texts.h"
#include "tools/Format.h"

namespace qv {

ProgressDialog::ProgressDialog(QWidget* parent, const QVLoadString& loadString, bool cancelOffered)
    : QDialog(parent),
      m_loadString(loadString),
      m_count(new QLabel(this)),
      m_bar(new QProgressBar(this)),
      m_cancelOffered(cancelOffered) {
  setModal(true);
  setWindowTitle(HostText(loadString, Text::DiscriminatorListTitle));
  auto* label = new QLabel(OwnText(loadString, Text::ReadingDiscriminators), this);
  label->setTextFormat(Qt::PlainText);
  m_count->setTextFormat(Qt::PlainText);
  m_bar->setTextVisible(false);
  m_bar->setAccessibleName(label->text());
  auto* column = new QVBoxLayout(this);
  column->addWidget(label);
  column->addWidget(m_bar);
  column->addWidget(m_count);
  if (cancelOffered) {
    AddCancel();
  }
  setMinimumWidth(fontMetrics().averageCharWidth() * 60);
}

void ProgressDialog::AddCancel() {
  auto* cancel = new QPushButton(HostCaption(m_loadString, Text::Cancel), this);
  connect(cancel, &QPushButton::clicked, this, &ProgressDialog::reject);
  layout()->addWidget(cancel);
  layout()->setAlignment(cancel, Qt::AlignRight);
}

void ProgressDialog::ShowStep(int done, int total) {
  m_bar->setRange(0, total);
  m_bar->setValue(done);
  const QString wording = OwnText(m_loadString, Text::ReadingProgress);
  m_count->setText(ToQString(Format(ToWide(wording).ToView(), {done, total})));
}

void ProgressDialog::reject() { m_cancelled = m_cancelOffered; }

}  // namespace qv
