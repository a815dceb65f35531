#include "manager/ui/CDlgSetupDiscriminators.h"

#include <QMenu>

#include "editor/ui/CDlgAddModifyDiscriminator.h"
#include "manager/CurrentRow.h"
#include "manager/DiscriminatorClipboard.h"
#include "manager/DiscriminatorList.h"
#include "manager/DiscriminatorListView.h"
#include "toolkit/DialogColumn.h"
#include "toolkit/ListPart.h"
#include "toolkit/MaskedIcon.h"
#include "toolkit/MessageBoxes.h"
#include "toolkit/ProgressWindow.h"
#include "toolkit/QVControlBoxButtonsLayout.h"
#include "toolkit/RunDialog.h"
#include "toolkit/Strings.h"
#include "toolkit/Texts.h"
#include "toolkit/WaitCursor.h"
#include "ui_1300.h"

namespace {

constexpr QSize rowImageSize(16, 16);

qv::EditorEnd RunEditor(CWnd* parent, qv::XmlNode* deviceGroups, const QVWideString* filePath) {
  CDlgAddModifyDiscriminator editor(deviceGroups, parent, filePath);
  return qv::RunDialog(editor);
}

}  // namespace

/// Shows the list in the dialog.
class CDlgSetupDiscriminators::View : public qv::DiscriminatorListView {
 public:
  explicit View(CDlgSetupDiscriminators& dialog) : m_dialog(dialog) {}

  std::unique_ptr<qv::Progress> NewProgress() override {
    return std::make_unique<qv::ProgressWindow>(&m_dialog, m_dialog.Services().loadString,
                                                qv::ProgressWindow::Cancel::NotOffered);
  }
  void ShowRows(const std::vector<qv::STagDiscriminatorRow>& rows) override {
    m_dialog.ShowRows(rows);
  }
  void RemoveRow(int row) override {
    // The buttons follow once, when all are gone.
    m_dialog.m_listDiscriminators->RemoveRow(row);
    m_dialog.m_shownRows.erase(m_dialog.m_shownRows.begin() + row);
  }

 private:
  CDlgSetupDiscriminators& m_dialog;
};

CDlgSetupDiscriminators::CDlgSetupDiscriminators(XmlDocument::XmlNode* deviceGroups, CWnd* parent)
    : CDialog(parent), m_ui(std::make_unique<Ui::Template1300>()), m_deviceGroups(deviceGroups) {
  using qv::ListPart;
  using qv::ReportList;
  Build(*m_ui);
  m_listDiscriminators = std::make_unique<ListPart>(
      ListPart::Controls{m_ui->listDiscriminators, m_ui->buttonAdd, m_ui->buttonModify,
                         m_ui->buttonRemove},
      ListPart::Verbs{[this] { OnAdd(); }, [this] { OnModify(); }, [this] { OnRemove(); }});
  connect(m_ui->listDiscriminators, &ReportList::KeyDown, this,
          &CDlgSetupDiscriminators::OnKeydownListDiscriminators);
  connect(m_ui->listDiscriminators, &ReportList::MenuWanted, this,
          &CDlgSetupDiscriminators::OnRclickListDiscriminators);
}

CDlgSetupDiscriminators::~CDlgSetupDiscriminators() = default;

int CDlgSetupDiscriminators::DoModal() { return CDialog::DoModal(); }

std::optional<int> CDlgSetupDiscriminators::OnCreate() {
  if (const auto refused = CDialog::OnCreate()) {
    return refused;
  }
  m_boxes = std::make_unique<qv::MessageBoxes>(this, Services());
  m_view = std::make_unique<View>(*this);
  m_list = std::make_unique<qv::DiscriminatorList>(Services(), qv::Files::Disk(), *m_boxes, *m_view,
                                                   m_deviceGroups);
  m_clipboard =
      std::make_unique<qv::DiscriminatorClipboard>(Services(), qv::Files::Disk(), *m_list);
  return std::nullopt;
}

void CDlgSetupDiscriminators::OnInitDialog() {
  InitializeRowImage();
  m_list->ReadInstallation();
  InitializeTexts();
  CreateColumns();
  if (!InitializeDiscriminatorsList()) {
    EndDialog(IDCANCEL);
    return;
  }
  PositioningControls();
  KeepAsLeastSize();
}

void CDlgSetupDiscriminators::InitializeRowImage() {
  m_rowImage = qv::MaskedIcon(qv::ToQString(Services().setup.getImageFilePath()) +
                              QStringLiteral("DISCRIMINATORVARIABLES-16.png"));
}

void CDlgSetupDiscriminators::InitializeTexts() {
  m_listDiscriminators->InitializeButtons(Services());
  SetButton(m_ui->buttonExit, Text::Exit, L"EXIT-16.png");
  SetLabel(m_ui->boxDiscriminators, m_ui->listDiscriminators, Text::Discriminators);
  SetTitle(Text::DiscriminatorListTitle);
}

void CDlgSetupDiscriminators::CreateColumns() {
  m_listDiscriminators->CreateColumns(Services().loadString, {Text::Name, Text::Description});
  m_ui->listDiscriminators->setIconSize(rowImageSize);
}

bool CDlgSetupDiscriminators::InitializeDiscriminatorsList() {
  qv::ProgressWindow progress(parentWidget(), Services().loadString,
                              qv::ProgressWindow::Cancel::Offered);
  return m_list->Refresh(progress);
}

void CDlgSetupDiscriminators::ShowRows(const std::vector<qv::STagDiscriminatorRow>& rows) {
  std::vector<qv::ListRow> shown;
  for (const auto& row : rows) {
    shown.push_back(
        {{qv::ToQString(row.shown.name), qv::ToQString(row.shown.description)}, m_rowImage});
  }
  const auto current = qv::CurrentRow(m_shownRows, m_listDiscriminators->CurrentRow(), rows);
  m_listDiscriminators->Show(shown, std::nullopt, current);
  m_shownRows = rows;
  FollowRows();
}

void CDlgSetupDiscriminators::FollowRows() {
  m_listDiscriminators->ResizeColumns();
  m_listDiscriminators->EnableDisableButtons();
}

void CDlgSetupDiscriminators::PositioningControls() {
  QVControlBoxButtonsLayout list(nullptr, m_ui->listDiscriminators, m_ui->boxDiscriminators);
  list.AddButtons(m_ui->buttonAdd, m_ui->buttonModify, m_ui->buttonRemove);
  qv::DialogColumn column(nullptr);
  column.Add(&list, 100);
  column.Add(m_ui->buttonExit, LayoutSizeStandard);
  column.Layout(rect());
  FollowRows();
}

void CDlgSetupDiscriminators::OnKeydownListDiscriminators(int key, bool control) {
  if (control && key == Qt::Key_C) {
    CopyToClipboard();
  } else if (control && key == Qt::Key_V) {
    PasteFromClipboard();
  }
}

void CDlgSetupDiscriminators::OnAdd() {
  m_list->OnAdd([this](auto* groups, auto* path) { return RunEditor(this, groups, path); });
}

void CDlgSetupDiscriminators::OnModify() {
  m_list->OnModify(m_listDiscriminators->SelectedRows(),
                   [this](auto* groups, auto* path) { return RunEditor(this, groups, path); });
}

void CDlgSetupDiscriminators::OnRemove() {
  const auto end = m_list->OnRemove(m_listDiscriminators->SelectedRows());
  if (end.refusal) {
    Tell(*m_boxes, *end.refusal);
  } else if (end.outcome != qv::RemovalOutcome::NothingSelected) {
    if (end.rowToSelect) {
      m_listDiscriminators->Select(*end.rowToSelect);
    }
    FollowRows();
  }
}

void CDlgSetupDiscriminators::CopyToClipboard() {
  const qv::WaitCursor wait(this);
  m_clipboard->Copy(m_listDiscriminators->SelectedRows());
}

void CDlgSetupDiscriminators::PasteFromClipboard() {
  const qv::WaitCursor wait(this);
  m_clipboard->Paste();
}

void CDlgSetupDiscriminators::AddCommand(QMenu& menu, Text text, const char* shortcut,
                                         void (CDlgSetupDiscriminators::*run)()) {
  menu.addAction(qv::HostCaption(Services().loadString, text) + QLatin1String(shortcut), this, run);
}

void CDlgSetupDiscriminators::OnRclickListDiscriminators(const QPoint& globalPosition) {
  const auto offer = m_clipboard->Offer(m_listDiscriminators->SelectedRows().size());
  QMenu menu(this);
  if (offer.copy) {
    AddCommand(menu, Text::Copy, "\tCtrl+C", &CDlgSetupDiscriminators::CopyToClipboard);
  }
  if (offer.paste) {
    AddCommand(menu, Text::Paste, "\tCtrl+V", &CDlgSetupDiscriminators::PasteFromClipboard);
  }
  if (!menu.isEmpty()) {
    menu.exec(globalPosition);
  }
}

void CDlgSetupDiscriminators::OnOK() {
  if (m_list->Changed()) {
    CDialog::OnOK();
  } else {
    OnCancel();
  }
}

void CDlgSetupDiscriminators::OnDestroy() {
  m_listDiscriminators->Clear();
  m_shownRows.clear();
  m_clipboard.reset();
  m_list.reset();
  m_boxes.reset();
}
