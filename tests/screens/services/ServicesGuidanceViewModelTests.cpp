#include <gtest/gtest.h>

#include "screens/services/ServicesGuidanceViewModel.h"
#include "support/Printers.h"

namespace quillmere {
namespace {

TEST(ServicesGuidance, AsksForThePreviewOfTheServicesList) {
  QString commandText;
  QString screen;
  ServicesGuidanceViewModel services([&](const BrewCommand& command, const QString& sourceScreen) {
    commandText = command.commandText;
    screen = sourceScreen;
  });
  services.previewServicesList();
  EXPECT_EQ(commandText, QStringLiteral("brew services list"));
  EXPECT_EQ(screen, QStringLiteral("Services"));
}

}  // namespace
}  // namespace quillmere
