#pragma once

#include <bit>
#include <cstdint>
#include <exception>
#include <functional>
#include <type_traits>
#include <utility>

namespace tessarondel {

// The state groups a window model's command changed, handed to its window once
// the outermost command has returned. A window so never draws a group in the
// middle of a command, and no change made late in a command goes undrawn.
// The window models of the manager and of the shell share it; the manager's
// model sits in this library, below the shell.
//
// Change is an enum of at most 64 groups; the listener hears each marked group
// once, lowest value first, so the enum's order is the drawing order.
template <typename Change>
class ChangeBatch {
public:
    using Listener = std::function<void(Change)>;

    // Open while one command of the model runs; commands it calls in turn
    // join it, and the outermost one's end draws.
    class [[nodiscard]] Command {
    public:
        explicit Command(ChangeBatch& batch) : batch_(batch) { ++batch_.depth_; }
        ~Command() {
            // During an unwind the groups stay marked; the next command draws them.
            if (--batch_.depth_ == 0 && std::uncaught_exceptions() == 0) batch_.Flush();
        }
        Command(const Command&) = delete;
        Command& operator=(const Command&) = delete;

    private:
        ChangeBatch& batch_;
    };

    void SetListener(Listener listener) { listener_ = std::move(listener); }

    Command Begin() { return Command(*this); }

    // A change outside any command is drawn at once.
    void Mark(Change change) {
        dirty_ |= Bit(change);
        if (depth_ == 0) Flush();
    }

    // A modal box or dialog runs its own event loop: what changed so far is
    // drawn before it opens, and commands that arrive from that loop (the
    // tray's) draw as they end instead of waiting for the box.
    template <typename Ask>
    decltype(auto) Modal(Ask&& ask) {
        Flush();
        const int outer = std::exchange(depth_, 0);
        const Restore restore{depth_, outer};
        return std::forward<Ask>(ask)();
    }

private:
    struct Restore {
        int& depth;
        int outer;
        ~Restore() { depth = outer; }
    };

    static std::uint64_t Bit(Change change) {
        const auto index = static_cast<std::underlying_type_t<Change>>(change);
        return std::uint64_t{1} << index;
    }

    // A group is unmarked before it is drawn, so a listener that runs a command
    // of its own only draws what is still pending.
    void Flush() {
        while (dirty_ != 0 && listener_) {
            const int index = std::countr_zero(dirty_);
            dirty_ &= dirty_ - 1;
            listener_(static_cast<Change>(index));
        }
    }

    Listener listener_;
    std::uint64_t dirty_ = 0;
    int depth_ = 0;
};

}  // namespace tessarondel
