#pragma once

#include <QCoreApplication>

namespace tessarondel::testing {

// The one application object that event loops and sockets need.
inline QCoreApplication& Application() {
    static int argc = 1;
    static char name[] = "services_tests";
    static char* argv[] = {name, nullptr};
    static QCoreApplication application(argc, argv);
    return application;
}

}  // namespace tessarondel::testing
