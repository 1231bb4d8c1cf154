#include "plugin/module/windows/variant_arguments.h"

#include "plugin/framework/argument_reader.h"
#include "plugin/framework/host/data/host_app.h"
#include "tests/plugin/module/windows/doubles/raw_object.h"
#include "tests/plugin/module/windows/doubles/refusing_heap.h"
#include "tests/plugin/module/windows/doubles/variant_list.h"

#include <gtest/gtest.h>

#include <functional>

namespace Meridax::VisualControls::Rotavue {
namespace {

using Host::Binary::failureOf;
using Host::Binary::RawObject;

constexpr std::uint32_t InvalidArgument = 0x80070057;
constexpr std::uint32_t OutOfMemory = 0x8007000E;

/// What copying the list and fetching an integer from it raises.
std::uint32_t fetchStatus(const VARIANT& list, std::int32_t position) {
    const VariantArguments arguments(list);
    return failureOf([&] { Api::ArgumentReader(&arguments).integer(position); }).status;
}

struct NullList {
    const char* name;
    std::function<VARIANT()> make;
};

VARIANT tagged(VARTYPE tag) {
    VARIANT variant{};
    variant.vt = tag;
    return variant;
}

const std::vector<NullList> NullLists{
    {"EmptyVariant", [] { return tagged(VT_EMPTY); }},
    {"NullVariant", [] { return tagged(VT_NULL); }},
    {"Number", [] { return integerVariant(5); }},
    {"NullArray", [] { return tagged(VT_ARRAY | VT_VARIANT); }},
    {"NullReference", [] { return tagged(VT_ARRAY | VT_VARIANT | VT_BYREF); }},
    {"ReferenceToNullArray",
     [] {
         static SAFEARRAY* none = nullptr;
         VARIANT variant = tagged(VT_ARRAY | VT_VARIANT | VT_BYREF);
         variant.pparray = &none;
         return variant;
     }},
    {"ArrayOfIntegers",
     [] {
         VARIANT variant = tagged(VT_ARRAY | VT_I4);
         variant.parray = ::SafeArrayCreateVector(VT_I4, 0, 2);
         return variant;
     }},
    {"ArrayOfIntegersUnderTheTagOfVariants",
     [] {
         VARIANT variant = tagged(VT_ARRAY | VT_VARIANT);
         variant.parray = ::SafeArrayCreateVector(VT_I4, 0, 2);
         return variant;
     }},
    {"ArrayOfTwoDimensions", [] {
         SAFEARRAYBOUND bounds[] = {{2, 0}, {2, 0}};
         VARIANT variant = tagged(VT_ARRAY | VT_VARIANT);
         variant.parray = ::SafeArrayCreate(VT_VARIANT, 2, bounds);
         return variant;
     }}};

class NullListTest : public testing::TestWithParam<NullList> {};

TEST_P(NullListTest, IsRefused) {
    VARIANT list = GetParam().make();
    EXPECT_EQ(fetchStatus(list, 0), InvalidArgument);
    if ((list.vt & VT_BYREF) == 0) ::VariantClear(&list);
}

INSTANTIATE_TEST_SUITE_P(Variants, NullListTest, testing::ValuesIn(NullLists),
                         [](const auto& parameter) { return parameter.param.name; });

TEST(VariantArgumentsTest, ListWithoutElementsHasNoPosition) {
    const VariantList list({});
    EXPECT_EQ(fetchStatus(list.value(), 0), InvalidArgument);
    EXPECT_EQ(fetchStatus(list.value(), -1), InvalidArgument);
}

TEST(VariantArgumentsTest, PositionsAreCountedFromTheLowerBound) {
    const VariantList list({integerVariant(10), integerVariant(11)}, 3);
    const VariantArguments arguments(list.value());
    const Api::ArgumentReader reader(&arguments);
    EXPECT_EQ(reader.integer(3), 10);
    EXPECT_EQ(reader.integer(4), 11);
    for (const std::int32_t outside : {-1, 0, 2, 5})
        EXPECT_EQ(fetchStatus(list.value(), outside), InvalidArgument) << outside;
}

TEST(VariantArgumentsTest, LowerBoundMayBeNegative) {
    const VariantList list({integerVariant(10), integerVariant(11)}, -1);
    const VariantArguments arguments(list.value());
    EXPECT_EQ(Api::ArgumentReader(&arguments).integer(0), 11);
}

TEST(VariantArgumentsTest, ListComesByReferenceAsWell) {
    VariantList list({integerVariant(7)});
    VARIANT reference{};
    reference.vt = VT_ARRAY | VT_VARIANT | VT_BYREF;
    reference.pparray = &list.array();
    const VariantArguments arguments(reference);
    EXPECT_EQ(Api::ArgumentReader(&arguments).integer(0), 7);
}

TEST(VariantArgumentsTest, TagOfAnElementIsNotLookedAt) {
    RawObject object;
    const VariantList list({integerVariant(-2, VT_UI1), integerVariant(0x12345678, VT_BOOL),
                            objectVariant(object.get(), VT_I8)});
    const VariantArguments arguments(list.value());
    const Api::ArgumentReader reader(&arguments);
    EXPECT_EQ(reader.integer(0), -2);
    EXPECT_EQ(reader.word(1), 0x5678);
    EXPECT_EQ(reader.byte(1), 0x78);
    EXPECT_TRUE(reader.object<Host::IHostApp>(2));
}

TEST(VariantArgumentsTest, TextIsCopiedAndNullIsEmpty) {
    const VariantList list({textVariant(L"Ticks"), textVariant(nullptr)});
    const VariantArguments arguments(list.value());
    const Api::ArgumentReader reader(&arguments);
    EXPECT_EQ(reader.text(0), L"Ticks");
    EXPECT_EQ(reader.text(1), L"");
}

TEST(VariantArgumentsTest, ObjectIsAskedForTheInterfaceAndARefusalIsNull) {
    RawObject object;
    RawObject refusing;
    refusing.refuses = true;
    const VariantList list({objectVariant(object.get(), VT_DISPATCH), objectVariant(refusing.get()),
                            objectVariant(nullptr)});
    const VariantArguments arguments(list.value());
    const Api::ArgumentReader reader(&arguments);
    EXPECT_TRUE(reader.object<Host::IHostApp>(0));
    EXPECT_EQ(object.asked, std::vector<Host::Guid>{Host::IHostApp::Identifier});
    EXPECT_FALSE(reader.object<Host::IHostApp>(1));
    EXPECT_FALSE(reader.object<Host::IHostApp>(2));
    EXPECT_FALSE(reader.anyObject(2));
}

TEST(VariantArgumentsTest, EveryReferenceIsGivenBackWithTheCopy) {
    RawObject object;
    {
        const VariantList list({objectVariant(object.get())});
        EXPECT_EQ(object.references, 1U);
        {
            const VariantArguments arguments(list.value());
            const Api::ArgumentReader reader(&arguments);
            const auto held = reader.object<Host::IHostApp>(0);
            EXPECT_EQ(object.references, 3U);  // the list's, the copy's and ours
        }
        EXPECT_EQ(object.references, 1U);
    }
    EXPECT_EQ(object.references, 0U);
}

TEST(VariantArgumentsTest, StatusOfACopyThatFailsIsRaised) {
    const VariantList list({integerVariant(7)});
    std::uint32_t status = 0;
    {
        const RefusingHeap heap;
        status = fetchStatus(list.value(), 0);
        EXPECT_GT(heap.refused, 0);
    }
    EXPECT_EQ(status, OutOfMemory);
    EXPECT_EQ(fetchStatus(list.value(), 0), 0U);
}

TEST(VariantArgumentsTest, HostsListIsNotLockedAndMayChangeMeanwhile) {
    VariantList list({integerVariant(7)});
    const VariantArguments arguments(list.value());
    const Api::ArgumentReader reader(&arguments);
    static_cast<VARIANT*>(list.array()->pvData)[0].lVal = 8;
    EXPECT_EQ(list.array()->cLocks, 0U);
    EXPECT_EQ(reader.integer(0), 7);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
