#include "manager/DiscriminatorList.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "discriminator/DeviceLinks.h"
#include "discriminator/Fields.h"
#include "discriminator/FileNames.h"
#include "discriminator/ListEnd.h"
#include "host/Installation.h"
#include "tools/Names.h"

namespace qv {
namespace {

bool SortsBefore(const STagDiscriminatorRow& a, const STagDiscriminatorRow& b) {
  const int order = CompareLowered(a.shown.name.ToView(), b.shown.name.ToView());
  return order != 0 ? order < 0 : a.ordinal < b.ordinal;
}

}  // namespace

DiscriminatorList::DiscriminatorList(const Host& host, Files& files, Prompter& prompter,
                                     DiscriminatorListView& view, XmlNode* deviceGroups)
    : m_host(host),
      m_files(files),
      m_prompter(prompter),
      m_view(view),
      m_deviceGroups(deviceGroups) {}

void DiscriminatorList::ReadInstallation() {
  m_showConditions = IsEmbedded(m_host.mainCfg) ? ShowConditions::No : ShowConditions::Yes;
}

bool DiscriminatorList::Refresh(Progress& progress) {
  const bool read = Read(progress);
  m_view.ShowRows(m_rows);
  return read;
}

void DiscriminatorList::Refresh() {
  // Nobody but the view can have stopped it, and that shows no rows then.
  std::ignore = Read(*m_view.NewProgress());
  m_view.ShowRows(m_rows);
}

bool DiscriminatorList::Read(Progress& progress) {
  m_rows.clear();
  const DiscriminatorDirectory directory = Directory();
  const auto names = directory.FileNames();
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (!progress.Advance(i, names.size())) {
      m_rows.clear();
      return false;
    }
    if (auto shown = directory.Summary(names[i], m_showConditions)) {
      m_rows.push_back({static_cast<int>(m_rows.size()), *std::move(shown)});
    }
  }
  std::sort(m_rows.begin(), m_rows.end(), SortsBefore);
  return true;
}

void DiscriminatorList::EnsureDeviceGroups() {
  XmlNode* root = m_host.mainCfg.Root();
  if (!m_deviceGroups && root) {
    m_deviceGroups = root->NewChild(tag::DeviceGroups, nullptr);
  }
}

std::unique_ptr<XmlDocument> DiscriminatorList::CopyOfDeviceGroups() const {
  return m_deviceGroups ? std::make_unique<XmlDocument>(*m_deviceGroups)
                        : std::make_unique<XmlDocument>();
}

EditorEnd DiscriminatorList::OnAdd(const RunEditor& runEditor) {
  EnsureDeviceGroups();
  const auto copy = CopyOfDeviceGroups();
  const EditorEnd end = runEditor(copy->Root(), nullptr);
  if (!end.confirmed) {
    return end;
  }
  m_host.guids.invalidateGuid(QVVornelGuids::Discriminators, true);
  Refresh();
  if (m_deviceGroups) {
    *m_deviceGroups = *copy->Root();
  }
  m_host.guids.invalidateGuid(QVVornelGuids::DeviceGroups, true);
  m_changed = true;
  return end;
}

EditorEnd DiscriminatorList::OnModify(const std::vector<int>& selectedRows,
                                      const RunEditor& runEditor) {
  EnsureDeviceGroups();
  const auto copy = CopyOfDeviceGroups();
  if (selectedRows.empty()) {
    return {};
  }
  const QVWideString path = PathOf(selectedRows.front());
  const EditorEnd end = runEditor(copy->Root(), &path);
  if (!end.confirmed) {
    return end;
  }
  if (end.modified) {
    m_host.guids.invalidateGuid(QVVornelGuids::Discriminators, true);
  }
  Refresh();
  m_changed = true;
  return end;
}

RemovalEnd DiscriminatorList::OnRemove(const std::vector<int>& selectedRows) {
  if (selectedRows.empty()) {
    return {RemovalOutcome::NothingSelected};
  }
  if (!AskToRemove(selectedRows)) {
    return {RemovalOutcome::Declined};
  }
  int last = 0;
  for (std::size_t removed = 0; removed < selectedRows.size(); ++removed) {
    last = selectedRows[removed] - static_cast<int>(removed);
    if (!RemoveRow(last)) {
      return {RemovalOutcome::Stopped,
              {},
              Refused(Text::DiscriminatorFileNotDeleted,
                      AboutFile(PathOf(last).ToView(), m_files.Failure()))};
    }
    m_view.RemoveRow(last);
    m_host.guids.invalidateGuid(QVVornelGuids::Discriminators, true);
    m_changed = true;
  }
  return {RemovalOutcome::Done, NearestRow(last, m_rows.size())};
}

bool DiscriminatorList::AskToRemove(const std::vector<int>& rows) const {
  Addition names;
  for (const int row : rows) {
    const auto& name = m_rows.at(static_cast<std::size_t>(row)).shown.name;
    names.push_back({Text::ItemToRemove, {std::wstring(name.ToView())}});
  }
  return m_prompter.Ask(Text::RemoveDiscriminatorsQuestion, {}, Shortened(std::move(names)));
}

bool DiscriminatorList::RemoveRow(int row) {
  const QVWideString path = PathOf(row);
  m_files.ForgetFailure();
  if (m_files.Remove(path.ToView()) == Removal::Refused) {
    return false;
  }
  m_files.Remove(IndexPath(path).ToView());
  const auto found = m_rows.begin() + row;
  RemoveDiscriminatorFromDeviceGroupsNode(m_deviceGroups, IdOfStem(found->shown.fileStem));
  m_host.guids.invalidateGuid(QVVornelGuids::DeviceGroups, true);
  m_rows.erase(found);
  return true;
}

void DiscriminatorList::Announce(const XmlNode& root) {
  AddDiscriminatorToDeviceGroupsNode(m_deviceGroups, root);
  m_changed = true;
  m_host.guids.invalidateGuid(QVVornelGuids::Discriminators, true);
  m_host.guids.invalidateGuid(QVVornelGuids::DeviceGroups, true);
}

QVWideString DiscriminatorList::PathOf(int row) const {
  const auto& stem = m_rows.at(static_cast<std::size_t>(row)).shown.fileStem;
  return Directory().PathOfStem(stem);
}

DiscriminatorDirectory DiscriminatorList::Directory() const {
  return {m_host.setup.CfgPath(), m_files};
}

}  // namespace qv
