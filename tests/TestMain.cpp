#include <gtest/gtest.h>

#include <QCoreApplication>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    // Death tests fork; "threadsafe" re-executes the binary so the child has a clean Qt state.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    QCoreApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
