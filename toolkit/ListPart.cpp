#include "toolkit/ListPart.h"

#include <utility>

#include "host/Mnemonic.h"
#include "toolkit/ColourIcons.h"
#include "toolkit/ControlCaption.h"
#include "toolkit/EmptyHint.h"
#include "toolkit/Strings.h"
#include "toolkit/Texts.h"
#include "tools/Format.h"

namespace qv {
namespace {

void Initialize(QAbstractButton* button, Text text, const wchar_t* picture, const Host& host) {
  ShowCaption(button, HostCaption(host.loadString, text));
  ShowPicture(button, host.setup.getImageFilePath() + picture);
}

/// What an empty list says: that its button Add is where to begin.
QString HowToBegin(const QVLoadString& loadString) {
  if (!loadString.Has(Number(Text::EmptyList))) {
    return {};
  }
  const std::wstring button = WithoutMnemonic(loadString.Load(Text::Add).ToView());
  return ToQString(Format(loadString.Load(Text::EmptyList).ToView(), {button.c_str()}));
}

QTreeWidgetItem* NewItem(const ListRow& row) {
  auto* item = new QTreeWidgetItem(row.texts);
  item->setIcon(0, row.icon);
  return item;
}

void Run(const std::function<void()>& verb) {
  if (verb) {
    verb();
  }
}

}  // namespace

ListPart::ListPart(const Controls& controls, Verbs verbs)
    : m_controls(controls), m_emptyHint(new EmptyHint(*controls.view)), m_verbs(std::move(verbs)) {
  const auto connectButton = [this](QAbstractButton* button, const std::function<void()>& verb) {
    if (button) {
      connect(button, &QAbstractButton::clicked, this, [&verb] { Run(verb); });
    }
  };
  connectButton(controls.add, m_verbs.add);
  connectButton(controls.modify, m_verbs.modify);
  connectButton(controls.remove, m_verbs.remove);
  connect(controls.view, &ReportList::DoubleClicked, this, [this] { Run(m_verbs.modify); });
  connect(controls.view, &ReportList::KeyDown, this, &ListPart::OnKeydown);
  connect(controls.view, &ReportList::itemSelectionChanged, this, &ListPart::EnableDisableButtons);
  connect(controls.view, &ReportList::RoomChanged, this, &ListPart::ResizeColumns);
}

void ListPart::InitializeButtons(const Host& host) {
  Initialize(m_controls.add, Text::Add, L"NEW-16.png", host);
  Initialize(m_controls.modify, Text::Modify, L"MODIFY-16.png", host);
  Initialize(m_controls.remove, Text::Remove, L"REMOVE-16.png", host);
  ShowHint(m_controls.add, OwnText(host.loadString, Text::InsertKey));
  ShowHint(m_controls.remove, OwnText(host.loadString, Text::DeleteKey));
  m_emptyHint->SetHint(HowToBegin(host.loadString));
}

void ListPart::SetEmptyHint(const QString& hint) { m_emptyHint->SetHint(hint); }

void ListPart::CreateColumns(const QVLoadString& loadString, const std::vector<Text>& headings) {
  QStringList captions;
  for (const Text heading : headings) {
    captions << HostText(loadString, heading);
  }
  m_controls.view->setColumnCount(static_cast<int>(captions.size()));
  m_controls.view->setHeaderLabels(captions);
  m_controls.view->setIconSize(SmallIconSize(m_controls.view));
}

ListRow ListPart::ColouredRow(const QStringList& texts, Colour colour) const {
  return {texts, ColourIcon(colour, SmallIconSize(m_controls.view))};
}

void ListPart::Show(const std::vector<ListRow>& rows, std::optional<int> select,
                    std::optional<int> current) {
  QList<QTreeWidgetItem*> items;
  for (const ListRow& row : rows) {
    items.append(NewItem(row));
  }
  {
    // The buttons follow once, when the rows and the selection are there.
    const QSignalBlocker silent(m_controls.view);
    m_controls.view->clear();
    m_controls.view->addTopLevelItems(items);
    if (select) {
      Select(*select);
    } else if (current) {
      m_controls.view->setCurrentItem(m_controls.view->topLevelItem(*current), 0,
                                      QItemSelectionModel::NoUpdate);
    }
  }
  EnableDisableButtons();
}

void ListPart::AppendRow(const ListRow& row) {
  QTreeWidgetItem* item = NewItem(row);
  m_controls.view->addTopLevelItem(item);
  m_controls.view->scrollToItem(item);
}

void ListPart::SetTexts(int row, const QStringList& texts) {
  QTreeWidgetItem* item = m_controls.view->topLevelItem(row);
  for (int column = 0; column < texts.size(); ++column) {
    item->setText(column, texts[column]);
  }
}

void ListPart::RemoveRow(int row) {
  const QSignalBlocker silent(m_controls.view);
  delete m_controls.view->takeTopLevelItem(row);
}

void ListPart::Select(int row) {
  m_controls.view->setCurrentItem(m_controls.view->topLevelItem(row), 0,
                                  QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void ListPart::MakeCurrent(int row) {
  QTreeWidgetItem* item = m_controls.view->topLevelItem(row);
  m_controls.view->setCurrentItem(item, 0, QItemSelectionModel::NoUpdate);
  m_controls.view->scrollToItem(item);
}

std::optional<int> ListPart::SelectedRow() const {
  const auto rows = SelectedRows();
  return rows.empty() ? std::nullopt : std::optional(rows.front());
}

std::optional<int> ListPart::CurrentRow() const {
  const QModelIndex index = m_controls.view->currentIndex();
  return index.isValid() ? std::optional(index.row()) : std::nullopt;
}

void ListPart::ResizeColumns() {
  const int columns = m_controls.view->columnCount();
  const int room = m_controls.view->viewport()->width();
  for (int column = 0; column < columns; ++column) {
    const bool isLast = column == columns - 1;
    m_controls.view->setColumnWidth(column,
                                    isLast ? room - column * (room / columns) : room / columns);
  }
}

void ListPart::EnableDisableButtons() {
  const std::size_t selected = SelectedRows().size();
  Enable(m_controls.modify, selected == 1);
  Enable(m_controls.remove, selected >= 1);
}

void ListPart::Enable(QAbstractButton* button, bool enabled) {
  if (!button) {
    return;
  }
  // Of its window, which needn't be active yet when an editor over it has just been left.
  if (!enabled && button->window()->focusWidget() == button) {
    // By itself it would go to the next control, which the next Space would press.
    m_controls.view->setFocus(Qt::OtherFocusReason);
  }
  button->setEnabled(enabled);
}

void ListPart::OnKeydown(int key) {
  if (key == Qt::Key_Delete) {
    Run(m_verbs.remove);
  } else if (key == Qt::Key_Insert) {
    Run(m_verbs.add);
  }
}

}  // namespace qv
