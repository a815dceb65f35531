#include "manager/ui/CDlgSetupDiscriminators.h"

#include <QHeaderView>
#include <QMenu>

#include "editor/ui/CDlgAddModifyDiscriminator.h"
#include "manager/DiscriminatorList.h"
#include "toolkit/Caption.h"
#include "toolkit/MaskedIcon.h"
#include "toolkit/MessageBoxes.h"
#include "toolkit/ProgressWindow.h"
#include "toolkit/QVControlBoxButtonsLayout.h"
#include "toolkit/QVLayout.h"
#include "toolkit/ReportList.h"
#include "toolkit/RunDialog.h"
#include "toolkit/Strings.h"
#include "toolkit/Texts.h"
#include "toolkit/WaitCursor.h"
#include "ui_1300.h"

namespace {

constexpr int exitButton = IDOK;
constexpr int box = 5264;
constexpr int list = 5265;
constexpr int removeButton = 5347;
constexpr int addButton = 5348;
constexpr int modifyButton = 5349;

void BuildTemplate(QDialog* dialog) { Ui::Template1300().setupUi(dialog); }

qv::EditorEnd RunEditor(CWnd* parent, qv::XmlNode* deviceGroups, const QVWideString* filePath) {
  CDlgAddModifyDiscriminator editor(deviceGroups, parent, filePath);
  return qv::RunDialog<qv::EditorEnd>(editor);
}

}  // namespace

CDlgSetupDiscriminators::CDlgSetupDiscriminators(XmlDocument::XmlNode* deviceGroups, CWnd* parent)
    : CDialog(BuildTemplate, parent),
      m_deviceGroups(deviceGroups),
      m_listDiscriminators(Find<qv::ReportList>(list)) {
  using qv::ReportList;
  connect(m_listDiscriminators, &ReportList::itemSelectionChanged, this,
          &CDlgSetupDiscriminators::OnItemchangedListDiscriminators);
  connect(m_listDiscriminators, &ReportList::KeyDown, this,
          &CDlgSetupDiscriminators::OnKeydownListDiscriminators);
  connect(m_listDiscriminators, &ReportList::DoubleClicked, this,
          &CDlgSetupDiscriminators::OnModify);
  connect(Find<QPushButton>(addButton), &QPushButton::clicked, this,
          &CDlgSetupDiscriminators::OnAdd);
  connect(m_listDiscriminators, &ReportList::MenuWanted, this,
          &CDlgSetupDiscriminators::OnRclickListDiscriminators);
  connect(Find<QPushButton>(removeButton), &QPushButton::clicked, this,
          &CDlgSetupDiscriminators::OnRemove);
  connect(Find<QPushButton>(modifyButton), &QPushButton::clicked, this,
          &CDlgSetupDiscriminators::OnModify);
  connect(m_listDiscriminators, &ReportList::RoomChanged, this,
          &CDlgSetupDiscriminators::InitializeColumns);
}

CDlgSetupDiscriminators::~CDlgSetupDiscriminators() = default;

int CDlgSetupDiscriminators::DoModal() { return CDialog::DoModal(); }

std::optional<int> CDlgSetupDiscriminators::OnCreate() {
  if (const auto refused = CDialog::OnCreate()) {
    return refused;
  }
  m_boxes = std::make_unique<qv::MessageBoxes>(this, Services().loadString);
  m_list = std::make_unique<qv::DiscriminatorList>(Services(), qv::Files::Disk(), *m_boxes,
                                                   m_deviceGroups);
  return std::nullopt;
}

void CDlgSetupDiscriminators::OnInitDialog() {
  m_rowImage = qv::MaskedIcon(qv::ToQString(Services().setup.getImageFilePath()) +
                              QStringLiteral("DISCRIMINATORVARIABLES-16.png"));
  m_list->ReadInstallation();
  InitializeTexts();
  CreateColumns();
  if (!InitializeDiscriminatorsList(true)) {
    EndDialog(IDCANCEL);
    return;
  }
  PositioningControls();
  EnableDisableButtons();
  KeepAsLeastSize();
}

void CDlgSetupDiscriminators::InitializeTexts() {
  SetButton(addButton, Text::Add, L"NEW-16.png");
  SetButton(modifyButton, Text::Modify, L"MODIFY-16.png");
  SetButton(removeButton, Text::Remove, L"REMOVE-16.png");
  SetButton(exitButton, Text::Exit, L"EXIT-16.png");
  SetLabel(box, list, Text::Discriminators);
  SetText(0, Text::DiscriminatorListTitle);
}

void CDlgSetupDiscriminators::CreateColumns() {
  const auto& loadString = Services().loadString;
  m_listDiscriminators->setColumnCount(2);
  m_listDiscriminators->setHeaderLabels(
      {qv::HostText(loadString, Text::Name), qv::HostText(loadString, Text::Description)});
  m_listDiscriminators->setIconSize(QSize(16, 16));
}

void CDlgSetupDiscriminators::InitializeColumns() {
  const int room = m_listDiscriminators->viewport()->width();
  m_listDiscriminators->setColumnWidth(0, room / 2);
  m_listDiscriminators->setColumnWidth(1, room - room / 2);
}

bool CDlgSetupDiscriminators::InitializeDiscriminatorsList(bool firstReading) {
  using qv::ProgressWindow;
  ProgressWindow progress(
      firstReading ? parentWidget() : this, Services().loadString,
      firstReading ? ProgressWindow::Cancel::Offered : ProgressWindow::Cancel::NotOffered);
  const bool read = m_list->Refresh(progress);
  ShowRows();
  return read;
}

void CDlgSetupDiscriminators::ShowRows() {
  QList<QTreeWidgetItem*> items;
  for (const auto& row : m_list->Rows()) {
    auto* item =
        new QTreeWidgetItem({qv::ToQString(row.shown.name), qv::ToQString(row.shown.description)});
    item->setIcon(0, m_rowImage);
    items.append(item);
  }
  m_listDiscriminators->clear();
  m_listDiscriminators->addTopLevelItems(items);
}

void CDlgSetupDiscriminators::PositioningControls() {
  QVControlBoxButtonsLayout listLayout(this, list, box);
  listLayout.AddButtons(addButton, modifyButton, removeButton);
  QVVerticalLayout column(nullptr);
  column.SetBorders(LayoutSizeStandard, LayoutSizeStandard);
  column.AddGap(LayoutSizeStandard);
  column.AddLayout(&listLayout, 100);
  column.AddGap(LayoutSizeStandard);
  column.AddControl(Control(exitButton), LayoutSizeStandard);
  column.AddGap(LayoutSizeStandard);
  column.Layout(rect());
  InitializeColumns();
  EnableDisableButtons();
}

void CDlgSetupDiscriminators::EnableDisableButtons() {
  const auto buttons = qv::DiscriminatorList::Buttons(m_listDiscriminators->SelectedRows().size());
  Control(addButton)->setEnabled(buttons.add);
  Control(modifyButton)->setEnabled(buttons.modify);
  Control(removeButton)->setEnabled(buttons.remove);
}

void CDlgSetupDiscriminators::OnItemchangedListDiscriminators() { EnableDisableButtons(); }

void CDlgSetupDiscriminators::OnKeydownListDiscriminators(int key, bool control) {
  if (key == Qt::Key_Delete) {
    OnRemove();
  } else if (key == Qt::Key_Insert) {
    OnAdd();
  } else if (control && key == Qt::Key_C) {
    CopyToClipboard();
  } else if (control && key == Qt::Key_V) {
    PasteFromClipboard();
  }
}

void CDlgSetupDiscriminators::RefreshList() {
  InitializeDiscriminatorsList(false);
  InitializeColumns();
  EnableDisableButtons();
}

void CDlgSetupDiscriminators::OnAdd() {
  m_list->OnAdd([this](auto* groups, auto* path) { return RunEditor(this, groups, path); },
                [this] { RefreshList(); });
}

void CDlgSetupDiscriminators::OnModify() {
  m_list->OnModify(
      m_listDiscriminators->SelectedRows(),
      [this](auto* groups, auto* path) { return RunEditor(this, groups, path); },
      [this] { RefreshList(); });
}

void CDlgSetupDiscriminators::OnRemove() {
  const auto end =
      m_list->OnRemove(m_listDiscriminators->SelectedRows(), [this](int row) { RemoveRow(row); });
  if (end.outcome == qv::RemovalOutcome::NothingSelected ||
      end.outcome == qv::RemovalOutcome::Stopped) {
    return;
  }
  if (end.rowToSelect) {
    SelectRow(*end.rowToSelect);
  }
  InitializeColumns();
  EnableDisableButtons();
}

void CDlgSetupDiscriminators::RemoveRow(int row) {
  // The buttons follow once, when all are gone.
  const QSignalBlocker silent(m_listDiscriminators);
  delete m_listDiscriminators->takeTopLevelItem(row);
}

void CDlgSetupDiscriminators::SelectRow(int row) {
  m_listDiscriminators->setCurrentItem(
      m_listDiscriminators->topLevelItem(row), 0,
      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void CDlgSetupDiscriminators::CopyToClipboard() {
  const qv::WaitCursor wait(this);
  m_list->CopyToClipboard(m_listDiscriminators->SelectedRows());
}

void CDlgSetupDiscriminators::PasteFromClipboard() {
  const qv::WaitCursor wait(this);
  m_list->PasteFromClipboard([this] { RefreshList(); });
}

void CDlgSetupDiscriminators::OnRclickListDiscriminators(const QPoint& globalPosition) {
  const auto offer = m_list->Offer(m_listDiscriminators->SelectedRows().size());
  if (!offer.copy && !offer.paste) {
    return;
  }
  const auto& loadString = Services().loadString;
  QMenu menu(this);
  if (offer.copy) {
    menu.addAction(qv::LiteralText(qv::HostText(loadString, Text::Copy)) + "\tCtrl+C", this,
                   &CDlgSetupDiscriminators::CopyToClipboard);
  }
  if (offer.paste) {
    menu.addAction(qv::LiteralText(qv::HostText(loadString, Text::Paste)) + "\tCtrl+V", this,
                   &CDlgSetupDiscriminators::PasteFromClipboard);
  }
  menu.exec(globalPosition);
}

void CDlgSetupDiscriminators::OnOK() {
  if (m_list->Changed()) {
    CDialog::OnOK();
  } else {
    OnCancel();
  }
}

void CDlgSetupDiscriminators::OnDestroy() {
  m_listDiscriminators->clear();
  m_list.reset();
  m_boxes.reset();
}
