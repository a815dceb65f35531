#pragma once

#include <memory>
#include <optional>

#include "timestructure/TypeList.h"
#include "timestructure/ui/ListDialog.h"

namespace qv {

/// The dialog that lists hour types or day types: a row with a colour icon for each, and the
/// buttons Add, Modify and Remove. What differs between the two is in `Kind` and the editor.
class TypeListDialog : public ListDialog {
  Q_OBJECT

 public:
  ~TypeListDialog() override;

  /// Whether the user changed anything. Stays readable after `DoModal`.
  bool m_modified = false;

 protected:
  struct Kind {
    Template build;
    const wchar_t* tag;  ///< of the children that are listed
    int box;             ///< control around the list
    Text boxText;
    Text title;
  };

  /// `container` outlives the dialog.
  TypeListDialog(CWnd* parent, XmlNode* container, const Kind& kind);

  /// Runs the editor of a type in `container`, or of a copy of one, over this dialog.
  virtual EditorEnd EditType(XmlNode& type, XmlNode& container) = 0;

  void OnInitDialog() override;
  void PositioningControls() override;
  void OnDestroy() override;
  void OnAdd() override;
  void OnModify() override;
  void OnRemove() override;
  void ResizeColumns() override;

 private:
  void InitializeTexts();
  qv::RunEditor Editor();
  void Follow(const ListEnd& end);
  void FillList(std::optional<int> select);

  Kind m_kind;
  XmlNode* m_container;
  std::unique_ptr<TypeList> m_types;
};

}  // namespace qv
