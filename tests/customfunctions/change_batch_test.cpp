#include "customfunctions/change_batch.h"

#include <gtest/gtest.h>

#include <vector>

namespace tessarondel {
namespace {

enum class Group { A, B, C };

struct Drawn {
    Drawn() {
        batch.SetListener([this](Group group) { groups.push_back(group); });
    }
    ChangeBatch<Group> batch;
    std::vector<Group> groups;
};

TEST(ChangeBatch, EachMarkedGroupIsDrawnOnceInOrderWhenTheOutermostCommandEnds) {
    Drawn drawn;
    {
        const auto outer = drawn.batch.Begin();
        drawn.batch.Mark(Group::C);
        {
            const auto inner = drawn.batch.Begin();
            drawn.batch.Mark(Group::A);
            drawn.batch.Mark(Group::C);
        }
        EXPECT_TRUE(drawn.groups.empty());
    }
    EXPECT_EQ(drawn.groups, (std::vector{Group::A, Group::C}));
}

// A box opened inside a command runs its own event loop; the tray's commands
// from that loop must not wait for the box to close.
TEST(ChangeBatch, AModalStepDrawsWhatIsPendingAndCommandsFromItsLoopDrawAsTheyEnd) {
    Drawn drawn;
    {
        const auto command = drawn.batch.Begin();
        drawn.batch.Mark(Group::B);
        drawn.batch.Modal([&] {
            EXPECT_EQ(drawn.groups, std::vector{Group::B});
            const auto fromTheTray = drawn.batch.Begin();
            drawn.batch.Mark(Group::A);
        });
        EXPECT_EQ(drawn.groups, (std::vector{Group::B, Group::A}));
        drawn.batch.Mark(Group::C);
    }
    EXPECT_EQ(drawn.groups, (std::vector{Group::B, Group::A, Group::C}));
}

}  // namespace
}  // namespace tessarondel
