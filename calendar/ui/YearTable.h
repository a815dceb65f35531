#pragma once

namespace qv {

/// As long as one of these lives, assistive technology finds in a `YearView` a table whose rows are
/// the weeks of the year, from Monday to Sunday, and whose cells are dates. Nothing else is changed
/// for any other class.
class YearTableOffer {
 public:
  YearTableOffer();
  YearTableOffer(const YearTableOffer&) = delete;
  YearTableOffer& operator=(const YearTableOffer&) = delete;
  ~YearTableOffer();
};

}  // namespace qv
