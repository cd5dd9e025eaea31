#include "execution/DirectCommandRunnerError.h"

namespace quillmere {
namespace {

QString describe(const UnresolvedBrewExecutable& error) {
  return error.status == BrewExecutableResolution::Status::resolved
             ? QStringLiteral("The location of the selected prefix's bin/brew is not known.")
             : message(error.status);
}

QString describe(const UnsupportedTarget& error) {
  return QStringLiteral("This command cannot be run for a %1 target.").arg(rawValue(error.kind));
}

QString describe(const SystemFailure& error) {
  return QString::fromStdString(error.error.message());
}

}  // namespace

QString description(const DirectCommandRunnerError& error) {
  return std::visit([](const auto& alternative) { return describe(alternative); }, error);
}

}  // namespace quillmere
