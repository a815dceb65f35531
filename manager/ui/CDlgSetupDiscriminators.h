#pragma once

#include <QIcon>
#include <memory>
#include <optional>
#include <vector>

#include "toolkit/CDialog.h"
#include "toolkit/Export.h"
#include "tools/XmlDocument.h"

class QMenu;

namespace Ui {
class Template1300;
}

namespace qv {
class DiscriminatorClipboard;
class DiscriminatorList;
class ListPart;
class MessageBoxes;
struct STagDiscriminatorRow;
}  // namespace qv

/// The manager of all discriminators of the configuration directory: from it the user adds,
/// modifies, removes, copies and pastes them.
///
/// Files are written as soon as an operation is confirmed. The result of `DoModal` speaks of the
/// host's own document alone: `IDOK` if the user left by the exit button and something was saved,
/// removed or pasted, so that the host has to save its configuration; else `IDCANCEL`, also for
/// Escape and the close box; -1 if the host has not installed its services.
class QVDISCRIMINATOR_EXPORT CDlgSetupDiscriminators : public CDialog {
  Q_OBJECT

 public:
  /// `deviceGroups` is the host's node, which the dialog keeps in step with the files. It may be
  /// null; the first Add or Modify then makes one in the main configuration. It must outlive the
  /// dialog.
  CDlgSetupDiscriminators(XmlDocument::XmlNode* deviceGroups, CWnd* parent);
  ~CDlgSetupDiscriminators() override;

  // The base isn't exported, so that what a host calls stands here.
  int DoModal() override;

 protected:
  std::optional<int> OnCreate() override;
  void OnInitDialog() override;
  void PositioningControls() override;
  void OnOK() override;
  void OnDestroy() override;

 private:
  class View;

  void ShowRows(const std::vector<qv::STagDiscriminatorRow>& rows);
  void InitializeRowImage();
  void InitializeTexts();
  void CreateColumns();
  bool InitializeDiscriminatorsList();
  void FollowRows();
  void OnAdd();
  void OnModify();
  void OnRemove();
  void CopyToClipboard();
  void PasteFromClipboard();
  void OnRclickListDiscriminators(const QPoint& globalPosition);
  void AddCommand(QMenu& menu, Text text, const char* shortcut,
                  void (CDlgSetupDiscriminators::*run)());
  void OnKeydownListDiscriminators(int key, bool control);

  const std::unique_ptr<Ui::Template1300> m_ui;
  XmlDocument::XmlNode* m_deviceGroups;
  QIcon m_rowImage;
  std::unique_ptr<qv::ListPart> m_listDiscriminators;
  std::unique_ptr<qv::MessageBoxes> m_boxes;
  std::vector<qv::STagDiscriminatorRow> m_shownRows;
  std::unique_ptr<View> m_view;
  std::unique_ptr<qv::DiscriminatorList> m_list;
  std::unique_ptr<qv::DiscriminatorClipboard> m_clipboard;
};
