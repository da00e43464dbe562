// Runs the form tests inside the toolkit, on whatever screen the environment names (offscreen as a
// rule).
#include <gtest/gtest.h>

#include <QApplication>

#include "surface/qt/toolkit.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  // Listing the tests needs no screen either.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  surface::qt::install();
  return RUN_ALL_TESTS();
}
