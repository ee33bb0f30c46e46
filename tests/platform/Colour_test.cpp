#include "tests/Virtual_slot.h"
#include "vt/Container_obj.h"
#include "vt/Resolve_colour.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

using VT::Attribute_colour;
using VT::Resolve_colour::Attribute_node;
using Unresolved = VT::Resolve_colour::List<Attribute_node>;

namespace {

// Whatever is asked answers a byte, and the setter takes one: there are no other bits to cut off.
static_assert(std::is_same_v<decltype(&Unresolved::resolve_colours), bool (*)(unsigned char (*)(Attribute_node&))>);
static_assert(std::is_same_v<decltype(&Attribute_node::set_colour), void (Attribute_node::*)(std::uint8_t)>);

std::vector<std::string> asked;
Attribute_colour* queued_by_callback = nullptr;

/// Answers 100 for the first colour asked for, 101 for the second, and so on.
unsigned char number_the_colours(Attribute_node& node)
{
    asked.emplace_back(node.get_name());
    return static_cast<unsigned char>(99 + asked.size());
}

unsigned char queue_another(Attribute_node& node)
{
    if (queued_by_callback) {
        queued_by_callback->set_symbol("late");
        queued_by_callback = nullptr;
    }
    return number_the_colours(node);
}

unsigned char grey(Attribute_node&) { return 8; }

/// A node that writes down how it stands when it is asked for and when it is set.
class Witness final : public Attribute_node
{
  public:
    Witness(VT::VT_obj* owner, const char* symbol) : Attribute_node(owner) { name = symbol; }

    void set_colour(std::uint8_t palette_index) override { note("set to " + std::to_string(palette_index)); }

    void note(const std::string& what)
    {
        seen.push_back(what + (is_queued() ? ", queued" : ", not queued") + ", " +
                       std::to_string(Unresolved::unresolved.size()) + " wait, " +
                       (get_name() ? get_name() : "no name"));
    }

    std::vector<std::string> seen;
};

unsigned char ask_witness(Attribute_node& node)
{
    static_cast<Witness&>(node).note("asked");
    return 0xFE;
}

/// A colour of an object, and the process's queue, which the tests find empty and leave empty.
class Colour : public ::testing::Test
{
  protected:
    void SetUp() override
    {
        asked.clear();
        ASSERT_EQ(Unresolved::unresolved.size(), 0U);
    }
    void TearDown() override { ASSERT_EQ(Unresolved::unresolved.size(), 0U); }

    VT::Container_obj owner{VT::VT_obj::NULL_ID, nullptr, 0, 0, 0, 0, 0, nullptr, nullptr};
};

TEST_F(Colour, IsTheIndexItWasBuiltWithAndHasNotChanged)
{
    const Attribute_colour colour(&owner, 12);
    EXPECT_EQ(colour, 12);
    EXPECT_EQ(colour.get_object(), &owner);
    EXPECT_FALSE(colour.changed());
    EXPECT_FALSE(colour.is_queued());
}

TEST_F(Colour, AnotherIndexIsAChangeAndTheSameIsNone)
{
    Attribute_colour colour(&owner, 12);
    colour = 12;
    EXPECT_FALSE(colour.changed());
    colour = 13;
    EXPECT_EQ(colour, 13);
    EXPECT_TRUE(colour.changed());
    colour.set_told();
    EXPECT_FALSE(colour.changed());
}

TEST_F(Colour, ASymbolWaitsAndTheIndexStaysMeanwhile)
{
    Attribute_colour colour(&owner, 12);
    colour.set_symbol("warning");
    EXPECT_TRUE(colour.is_queued());
    EXPECT_STREQ(colour.get_name(), "warning");
    EXPECT_EQ(colour, 12);
    EXPECT_FALSE(colour.changed());
    EXPECT_EQ(Unresolved::unresolved.size(), 1U);

    EXPECT_TRUE(Unresolved::resolve_colours(grey));
    EXPECT_EQ(colour, 8);
    EXPECT_TRUE(colour.changed());
    EXPECT_FALSE(colour.is_queued());
    EXPECT_EQ(colour.get_name(), nullptr) << "the symbol is forgotten";
}

TEST_F(Colour, ResolvingToTheIndexItHasIsNoChange)
{
    Attribute_colour colour(&owner, 8);
    colour.set_symbol("grey");
    EXPECT_TRUE(Unresolved::resolve_colours(grey));
    EXPECT_FALSE(colour.changed());
}

TEST_F(Colour, ASecondSymbolReplacesTheFirstInItsPlaceOfTheQueue)
{
    Attribute_colour first(&owner, 0);
    Attribute_colour second(&owner, 0);
    first.set_symbol("one");
    second.set_symbol("two");
    first.set_symbol("other");
    EXPECT_EQ(Unresolved::unresolved.size(), 2U);
    EXPECT_TRUE(Unresolved::resolve_colours(number_the_colours));
    EXPECT_EQ(asked, (std::vector<std::string>{"other", "two"}));
}

TEST_F(Colour, AreResolvedInQueueOrder)
{
    Attribute_colour first(&owner, 0);
    Attribute_colour second(&owner, 0);
    Attribute_colour third(&owner, 0);
    second.set_symbol("b");
    third.set_symbol("c");
    first.set_symbol("a");
    EXPECT_TRUE(Unresolved::resolve_colours(number_the_colours));
    EXPECT_EQ(asked, (std::vector<std::string>{"b", "c", "a"}));
    EXPECT_EQ(second, 100);
    EXPECT_EQ(third, 101);
    EXPECT_EQ(first, 102);
}

TEST_F(Colour, WithoutAFunctionNothingIsResolved)
{
    EXPECT_FALSE(Unresolved::resolve_colours(nullptr)) << "even when nothing waits";
    Attribute_colour colour(&owner, 12);
    colour.set_symbol("warning");
    EXPECT_FALSE(Unresolved::resolve_colours(nullptr));
    EXPECT_TRUE(colour.is_queued());
    EXPECT_EQ(Unresolved::unresolved.size(), 1U);
}

TEST_F(Colour, AnEmptyQueueIsResolvedWithoutAQuestion)
{
    EXPECT_TRUE(Unresolved::resolve_colours(number_the_colours));
    EXPECT_TRUE(asked.empty());
}

TEST_F(Colour, IsOutOfTheQueueWhenItIsAskedForAndKeepsItsNameUntilItIsSet)
{
    Witness first(&owner, "first");
    Witness last(&owner, "last");
    Unresolved::unresolved.add(first);
    Unresolved::unresolved.add(last);
    EXPECT_TRUE(Unresolved::resolve_colours(ask_witness));
    EXPECT_EQ(first.seen, (std::vector<std::string>{"asked, not queued, 1 wait, first", //
                                                    "set to 254, not queued, 1 wait, first"}));
    EXPECT_EQ(last.seen, (std::vector<std::string>{"asked, not queued, 0 wait, last", //
                                                   "set to 254, not queued, 0 wait, last"}));
    EXPECT_EQ(first.get_name(), nullptr);
    EXPECT_EQ(last.get_name(), nullptr);
}

TEST_F(Colour, AssignedFromAnotherTakesTheIndexAndLeavesTheQueueAlone)
{
    Attribute_colour waiting(&owner, 12);
    Attribute_colour behind(&owner, 0);
    waiting.set_symbol("warning");
    behind.set_symbol("behind");
    VT::Container_obj other_owner(VT::VT_obj::NULL_ID, nullptr, 0, 0, 0, 0, 0, nullptr, nullptr);
    Attribute_colour colour(&other_owner, 3);
    colour = waiting;
    EXPECT_EQ(colour, 12);
    EXPECT_TRUE(colour.changed());
    EXPECT_FALSE(colour.is_queued());
    EXPECT_EQ(colour.get_name(), nullptr);
    EXPECT_EQ(colour.get_object(), &other_owner);
    EXPECT_TRUE(waiting.is_queued());
    EXPECT_EQ(Unresolved::unresolved.size(), 2U);
    EXPECT_TRUE(Unresolved::resolve_colours(number_the_colours));
    EXPECT_EQ(asked, (std::vector<std::string>{"warning", "behind"}));
    EXPECT_EQ(colour, 12);
}

TEST_F(Colour, AssignedFromAnotherIsSettledLikeByANumber)
{
    const Attribute_colour other(&owner, 12);
    Attribute_colour colour(&owner, 12);
    colour.set_symbol("warning");
    colour = other;
    EXPECT_FALSE(colour.is_queued());
    EXPECT_FALSE(colour.changed());
}

TEST_F(Colour, QueuedByTheCallbackIsResolvedInTheSameRun)
{
    Attribute_colour first(&owner, 0);
    Attribute_colour second(&owner, 0);
    Attribute_colour late(&owner, 0);
    queued_by_callback = &late;
    first.set_symbol("first");
    second.set_symbol("second");
    EXPECT_TRUE(Unresolved::resolve_colours(queue_another));
    EXPECT_EQ(asked, (std::vector<std::string>{"first", "second", "late"}));
    EXPECT_EQ(late, 102);
}

TEST_F(Colour, QueuedByTheCallbackOfTheLastOneIsResolvedToo)
{
    Attribute_colour only(&owner, 0);
    Attribute_colour late(&owner, 0);
    queued_by_callback = &late;
    only.set_symbol("only");
    EXPECT_TRUE(Unresolved::resolve_colours(queue_another));
    EXPECT_EQ(asked, (std::vector<std::string>{"only", "late"}));
}

TEST_F(Colour, OfNoObjectEndsTheRunAndIsTakenFromTheQueueUnasked)
{
    Attribute_colour before(&owner, 1);
    Attribute_colour ownerless(nullptr, 2);
    Attribute_colour behind(&owner, 3);
    before.set_symbol("before");
    ownerless.set_symbol("ownerless");
    behind.set_symbol("behind");

    EXPECT_TRUE(Unresolved::resolve_colours(number_the_colours));
    EXPECT_EQ(asked, (std::vector<std::string>{"before"}));
    EXPECT_FALSE(ownerless.is_queued());
    EXPECT_EQ(ownerless, 2);
    EXPECT_TRUE(behind.is_queued());
    EXPECT_EQ(Unresolved::unresolved.size(), 1U);

    EXPECT_TRUE(Unresolved::resolve_colours(number_the_colours));
    EXPECT_EQ(behind, 101);
}

TEST_F(Colour, ANumberSettlesASymbolicColour)
{
    Attribute_colour colour(&owner, 12);
    colour.set_symbol("warning");
    colour = 12;
    EXPECT_FALSE(colour.is_queued());
    EXPECT_EQ(colour.get_name(), nullptr);
    EXPECT_TRUE(Unresolved::resolve_colours(number_the_colours));
    EXPECT_TRUE(asked.empty());
    EXPECT_EQ(colour, 12);
}

/// Which of three queued colours goes, and what is asked for then and when one more has been queued.
void remove_one_of_three(VT::VT_obj& owner, std::size_t gone, const std::vector<std::string>& left)
{
    SCOPED_TRACE(gone);
    asked.clear();
    const char* const names[] = {"a", "b", "c"};
    std::unique_ptr<Attribute_colour> colours[3];
    for (std::size_t i = 0; i < 3; ++i) {
        colours[i] = std::make_unique<Attribute_colour>(&owner, std::uint8_t{0});
        colours[i]->set_symbol(names[i]);
    }
    colours[gone].reset();
    EXPECT_EQ(Unresolved::unresolved.size(), 2U);
    Attribute_colour last(&owner, 0);
    last.set_symbol("d");
    EXPECT_TRUE(Unresolved::resolve_colours(number_the_colours));
    EXPECT_EQ(asked, left);
}

TEST_F(Colour, ThatIsDestroyedLeavesTheQueueWhereverItStood)
{
    remove_one_of_three(owner, 0, {"b", "c", "d"});
    remove_one_of_three(owner, 1, {"a", "c", "d"});
    remove_one_of_three(owner, 2, {"a", "b", "d"});
}

TEST_F(Colour, TheLastToLeaveLeavesAnEmptyQueueThatWorks)
{
    {
        Attribute_colour only(&owner, 0);
        only.set_symbol("only");
    }
    EXPECT_EQ(Unresolved::unresolved.size(), 0U);
    Attribute_colour next(&owner, 0);
    next.set_symbol("next");
    EXPECT_TRUE(Unresolved::resolve_colours(number_the_colours));
    EXPECT_EQ(asked, (std::vector<std::string>{"next"}));
}

TEST_F(Colour, SetsItselfThroughTheThirdSlotOfItsVirtualTable)
{
    EXPECT_EQ(virtual_slot(&Attribute_node::set_colour), 2U);
}

TEST_F(Colour, KeepsItsLinkBehindTheVirtualTablePointer)
{
    Attribute_colour colour(&owner, 0);
    const auto link = [&colour] {
        std::uintptr_t word;
        std::memcpy(&word, reinterpret_cast<const char*>(static_cast<Attribute_node*>(&colour)) + sizeof(void*),
                    sizeof word);
        return word;
    };
    EXPECT_EQ(link(), 0U);
    colour.set_symbol("only");
    EXPECT_EQ(link(), ~std::uintptr_t{0}) << "the end of the queue";
    Attribute_colour next(&owner, 0);
    next.set_symbol("next");
    EXPECT_EQ(link(), reinterpret_cast<std::uintptr_t>(static_cast<Attribute_node*>(&next)));
    EXPECT_TRUE(Unresolved::resolve_colours(grey));
    EXPECT_EQ(link(), 0U);
}

} // namespace
