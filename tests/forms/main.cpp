// Window tests need an application around them; it runs on the offscreen platform unless told otherwise.
#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
