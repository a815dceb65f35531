#include <QApplication>
#include <cstdio>

#include "apps/configurator/Arguments.h"
#include "apps/configurator/Run.h"

int main(int count, char** arguments) {
  const auto call = configurator::ReadArguments(count, arguments);
  if (const auto* end = std::get_if<commandline::EarlyEnd>(&call)) {
    std::fputs(end->output.c_str(), stdout);
    std::fputs(end->error.c_str(), stderr);
    return end->status;
  }
  const QApplication application(count, arguments);
  return configurator::Run(std::get<configurator::Arguments>(call));
}
