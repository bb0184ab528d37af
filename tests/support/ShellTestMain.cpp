#include <QApplication>

#include <gtest/gtest.h>

// Shell tests run real widgets without a screen; one built with
// BREVIK_TEST_ON_X takes an X server's screen when there is one.
#ifdef BREVIK_TEST_ON_X
constexpr char kPlatform[] = "xcb;offscreen";
#else
constexpr char kPlatform[] = "offscreen";
#endif

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", kPlatform);
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
