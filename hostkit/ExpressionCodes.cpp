#include "hostkit/ExpressionCodes.h"

namespace qv {

std::optional<Text> WordingOf(int code) {
  switch (static_cast<ExpressionCode>(code)) {
    case ExpressionCode::TooLarge:
      return Text::ExpressionTooLarge;
    case ExpressionCode::NotWellFormed:
      return Text::ExpressionInvalid;
    case ExpressionCode::DiscriminatorOff:
      return Text::DiscriminatorsOff;
    case ExpressionCode::UnknownDevice:
      return Text::DeviceUnknown;
    case ExpressionCode::UnknownVariable:
      return Text::VariableUnknown;
    case ExpressionCode::ClassMissing:
      return Text::VariableOfOtherClass;
    case ExpressionCode::TypesMixed:
      return Text::TypesMixed;
    case ExpressionCode::Unreadable:
      return Text::VariableUnreadable;
    case ExpressionCode::NoValue:
      return Text::VariableWithoutValue;
    case ExpressionCode::NotFinite:
      return Text::ResultNotFinite;
    case ExpressionCode::Evaluated:
      break;
  }
  return std::nullopt;
}

}  // namespace qv
