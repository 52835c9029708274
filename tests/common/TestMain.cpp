// Test entry on the offscreen platform (also when the runner forgets to set it): a QGuiApplication
// for the headless areas, so that fonts and images work, and a QApplication only for the window's
// tests, which alone link Qt Widgets.
#ifdef ZP_TEST_FENSTER
#include <QApplication>
using Anwendung = QApplication;
#else
#include <QGuiApplication>
using Anwendung = QGuiApplication;
#endif
#include <gtest/gtest.h>

#include <cstdlib>

int main(int argc, char** argv) {
    if (!std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
    Anwendung app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
