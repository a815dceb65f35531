#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "host/QVMainCfg.h"
#include "hostkit/DeviceModel.h"
#include "hostkit/DirectorySetup.h"
#include "hostkit/ExpressionSupport.h"
#include "hostkit/GuidNotices.h"
#include "hostkit/IndexFiles.h"
#include "hostkit/InstalledServices.h"
#include "hostkit/LanguageFile.h"
#include "hostkit/ui/QtClipboard.h"
#include "hostkit/ui/WizardSupport.h"

namespace configurator {

/// The services that the library's dialogs ask of their host, made from the ready ones of hostkit.
/// They are installed as long as this object lives, and only one such object lives at a time.
class HostServices {
 public:
  /// `images` is the directory of the pictures of buttons and lists.
  explicit HostServices(std::wstring_view images);
  HostServices(const HostServices&) = delete;
  HostServices& operator=(const HostServices&) = delete;

  /// From now on the dialogs work on the files of `directory`, and on the devices that the main
  /// configuration has now. Not while one of them is open.
  void SetDirectory(std::wstring_view directory);

  /// From now on the dialogs speak as `file` does; false, and they go on as before, if it can't be
  /// read. An open dialog keeps its texts.
  bool SetLanguageFile(std::wstring_view file) { return m_texts.Load(file); }

  /// Calls `listener` with each notice of a change; an empty one for none.
  void SetListener(qv::GuidNotices::Listener listener) { m_listener = std::move(listener); }

  QVMainCfg& MainCfg() { return m_mainCfg; }

  /// The devices of the open installation with their values.
  const qv::ExpressionSupport& Expressions() const { return m_expressions; }

  /// The texts in which the dialogs speak.
  const QVLoadString& Texts() const { return m_texts; }

  /// The directory of the open installation and that of the images, each with its separator.
  const QVVornelSetup& Setup() const { return *m_setup; }

 private:
  std::wstring m_images;
  std::unique_ptr<qv::DirectorySetup> m_setup;
  QVMainCfg m_mainCfg;
  qv::GuidNotices::Listener m_listener;
  qv::GuidNotices m_notices;
  qv::LanguageFile m_texts;
  qv::IndexFiles m_indexFiles;
  qv::QtClipboard m_clipboard;
  qv::DeviceModel m_devices;
  qv::ExpressionSupport m_expressions{m_devices, m_texts};
  qv::WizardSupport m_wizards{m_expressions};
  qv::InstalledServices<QVVornelSetup, QVMainCfg, QVVornelGuids, QVLoadString,
                        CreateDiscriminatorIndex, QVClipboard, QVDriverSupport, QVInformes>
      m_installed;
};

}  // namespace configurator
