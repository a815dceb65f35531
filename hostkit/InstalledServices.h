#pragma once

namespace qv {

/// Installs services of a host for as long as this object lives, and takes them out again. The
/// services have to outlive it.
template <class... Services>
class InstalledServices {
 public:
  explicit InstalledServices(Services&... services) { (Services::Install(&services), ...); }
  InstalledServices(const InstalledServices&) = delete;
  InstalledServices& operator=(const InstalledServices&) = delete;
  ~InstalledServices() { (Services::Install(nullptr), ...); }
};

}  // namespace qv
