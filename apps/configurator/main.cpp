#include <QApplication>
#include <cstdio>

#include "apps/configurator/Arguments.h"
#include "apps/configurator/Run.h"

namespace {

/// Nobody looks at a run that ends by itself: it works where there is no display.
void ChoosePlatform(const configurator::Arguments& arguments) {
  constexpr const char* platform = "QT_QPA_PLATFORM";
  if (arguments.EndsByItself() && qEnvironmentVariableIsEmpty(platform)) {
    qputenv(platform, "offscreen");
  }
}

}  // namespace

int main(int count, char** words) {
  const auto call = configurator::ReadArguments(count, words);
  if (const auto* end = std::get_if<commandline::EarlyEnd>(&call)) {
    std::fputs(end->output.c_str(), stdout);
    std::fputs(end->error.c_str(), stderr);
    return end->status;
  }
  const auto& arguments = std::get<configurator::Arguments>(call);
  ChoosePlatform(arguments);
  const QApplication application(count, words);
  return configurator::Run(arguments);
}
