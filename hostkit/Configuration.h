#pragma once

#include <string>
#include <string_view>

#include "host/Addition.h"
#include "host/QVMainCfg.h"
#include "tools/Files.h"

namespace qv {

/// The main configuration of the open installation and its file, `configuration.xml`.
///
/// The document itself is the host's `QVMainCfg`: the dialogs of the library read it and make their
/// `deviceGroups` in it. It always has a root.
class Configuration {
 public:
  /// How an attempt to load ended.
  enum class Loaded {
    FromFile,    ///< from the directory's file
    New,         ///< the directory has no such file, and the document is new
    Unreadable,  ///< the file can't be read or is no well-formed XML
    Foreign      ///< the file is well-formed XML, but of something else
  };

  /// `document` isn't owned.
  explicit Configuration(QVMainCfg& document, Files& files = Files::Disk());

  /// Takes over the configuration of `directory`, which ends in its separator. For a file that is
  /// unreadable or foreign the document, and the file that `Save` writes, stay what they were.
  /// `why`, if given, then says why a file is unreadable, in lines of the library's own texts.
  [[nodiscard]] Loaded Load(std::wstring_view directory, Addition* why = nullptr);

  /// Writes the document to its file; false if that isn't possible.
  [[nodiscard]] bool Save();

  /// Whether the document is another than that of its file, as it is on the disk now.
  bool IsChanged() const;

  /// The full path of the file.
  const std::wstring& Path() const { return m_path; }

  /// The node that the manager of the discriminators works on; null if there is none, which is what
  /// the manager is to be told then.
  XmlNode* DeviceGroups();
  const XmlNode* DeviceGroups() const;

  /// Replaces the content of that node, which is made if there is none, by that of `content`; null
  /// removes the node.
  void SetDeviceGroups(const XmlNode* content);

  /// The devices that the installation talks to; null if there are none.
  const XmlNode* CommSystem() const;

  /// Whether the installation is an embedded one.
  bool IsEmbedded() const;

  /// Adds the device that marks an embedded installation, or removes all that do. No other device
  /// is touched.
  void SetEmbedded(bool embedded);

 private:
  QVMainCfg& m_document;
  Files& m_files;
  std::wstring m_path;
};

}  // namespace qv
