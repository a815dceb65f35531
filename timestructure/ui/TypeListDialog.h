#pragma once

#include <QGroupBox>

#include "timestructure/TypeList.h"
#include "toolkit/EditingDialog.h"
#include "toolkit/ListPart.h"

namespace qv {

/// The dialog that lists hour types or day types: a row with a colour icon for each, and the
/// buttons Add, Modify and Remove. What differs between the two is in `Wording`, the template, and
/// the editor.
class TypeListDialog : public EditingDialog<TypeList> {
  Q_OBJECT

 public:
  ~TypeListDialog() override;

 protected:
  struct Wording {
    const wchar_t* tag;  ///< of the children that are listed
    Text box;
    Text title;
  };

  /// `container` outlives the dialog.
  TypeListDialog(CWnd* parent, XmlNode* container, const Wording& wording);

  /// Sets up the controls of the template, which both dialogs call by the same names.
  template <class Template>
  void BuildList(Template& controls) {
    Build(controls);
    m_box = controls.boxTypes;
    m_list.emplace(
        ListPart::Controls{controls.listTypes, controls.buttonAdd, controls.buttonModify,
                           controls.buttonRemove},
        ListPart::Verbs{[this] { OnAdd(); }, [this] { OnModify(); }, [this] { OnRemove(); }});
  }

  /// Runs the editor of a type in the container, or of a copy of one, over this dialog.
  virtual EditorEnd EditType(XmlNode& type) = 0;
  XmlNode* Types() const { return m_container; }

  std::unique_ptr<TypeList> MakeForm() override;
  void OnInitDialog() override;
  void PositioningControls() override;
  void OnDestroy() override;

 private:
  void OnAdd();
  void OnModify();
  void OnRemove();
  RunEditor Editor();
  void Follow(const ListEnd& end);
  void FillList(const ListEnd& end = {});

  Wording m_wording;
  XmlNode* m_container;
  QGroupBox* m_box = nullptr;
  std::optional<ListPart> m_list;
};

}  // namespace qv
