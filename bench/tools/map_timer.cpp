// Starts a program and measures, on the X display of $DISPLAY, the time from
// the start to the mapping of its top-level window with the given title, and
// the processor time its threads had used by then, which a loaded machine
// disturbs far less; then waits idle and reads the program's resident memory.
// Prints "<ms> <kB> <cpu-ms>".
//   map_timer <title> <idle-seconds> <program> [arguments...]
#include <xcb/xcb.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

extern char** environ;

namespace {

std::string WindowTitle(xcb_connection_t* connection, xcb_window_t window) {
    const char* names[] = {"_NET_WM_NAME", "WM_NAME"};
    for (const char* name : names) {
        auto atomCookie = xcb_intern_atom(connection, 0, static_cast<uint16_t>(std::strlen(name)), name);
        xcb_intern_atom_reply_t* atom = xcb_intern_atom_reply(connection, atomCookie, nullptr);
        if (atom == nullptr) continue;
        auto cookie = xcb_get_property(connection, 0, window, atom->atom, XCB_GET_PROPERTY_TYPE_ANY, 0, 256);
        free(atom);
        xcb_get_property_reply_t* reply = xcb_get_property_reply(connection, cookie, nullptr);
        if (reply == nullptr) continue;
        std::string title(static_cast<const char*>(xcb_get_property_value(reply)),
                          static_cast<std::size_t>(xcb_get_property_value_length(reply)));
        free(reply);
        if (!title.empty()) return title;
    }
    return {};
}

long ResidentKilobytes(pid_t pid) {
    std::ifstream status("/proc/" + std::to_string(pid) + "/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.rfind("VmRSS:", 0) == 0) return std::stol(line.substr(6));
    }
    return -1;
}

// Time on a processor so far, summed over the process's threads.
double ProcessorMilliseconds(pid_t pid) {
    double nanoseconds = 0;
    for (const auto& task : std::filesystem::directory_iterator("/proc/" + std::to_string(pid) + "/task")) {
        std::ifstream schedstat(task.path() / "schedstat");
        double onCpu = 0;
        if (schedstat >> onCpu) nanoseconds += onCpu;
    }
    return nanoseconds / 1e6;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        std::fprintf(stderr, "usage: map_timer <title> <idle-seconds> <program> [arguments...]\n");
        return 2;
    }
    const std::string title = argv[1];
    const int idleSeconds = std::atoi(argv[2]);
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection)) return 2;
    xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection, root, XCB_CW_EVENT_MASK, &mask);
    xcb_flush(connection);

    const auto start = std::chrono::steady_clock::now();
    pid_t pid = 0;
    if (posix_spawn(&pid, argv[3], nullptr, nullptr, argv + 3, environ) != 0) return 2;
    double mappedMs = -1;
    double processorMs = -1;
    while (xcb_generic_event_t* event = xcb_wait_for_event(connection)) {
        const bool mapped = (event->response_type & 0x7f) == XCB_MAP_NOTIFY;
        const xcb_window_t window = reinterpret_cast<xcb_map_notify_event_t*>(event)->window;
        free(event);
        if (mapped && WindowTitle(connection, window) == title) {
            mappedMs = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
            processorMs = ProcessorMilliseconds(pid);
            break;
        }
    }
    std::this_thread::sleep_for(std::chrono::seconds(idleSeconds));
    const long rss = ResidentKilobytes(pid);
    kill(pid, SIGKILL);  // stopped by its own id; a kill leaves the settings untouched
    waitpid(pid, nullptr, 0);
    xcb_disconnect(connection);
    std::printf("%.1f %ld %.1f\n", mappedMs, rss, processorMs);
    return mappedMs < 0 ? 1 : 0;
}
