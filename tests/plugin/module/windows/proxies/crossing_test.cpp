#include "tests/plugin/module/windows/doubles/raw_object.h"

#include <gtest/gtest.h>

#include <cstring>

/// How arguments and results cross to a host's object.
namespace Meridax::Host::Binary {
namespace {

RawObject& at(IDispatch* object) {
    return RawObject::of(object);
}

HRESULT noteTruth(IDispatch* self, VARIANT_BOOL truth) {
    at(self).numbers.push_back(truth);
    return S_OK;
}

TEST(Crossing, TrueIsOneWhereAnArgumentIsABool) {
    RawObject object;
    object.put<&IHostCheckBox::SetChecked>(noteTruth);
    const auto box = object.proxy<IHostCheckBox>();
    box->SetChecked(true);
    box->SetChecked(false);
    EXPECT_EQ(object.numbers, (std::vector<std::int64_t>{1, 0}));
}

TEST(Crossing, TrueIsMinusOneAndAPositionOneNumberInADataRequest) {
    RawObject object;
    RawObject list;
    object.put<&IHostVisualControl::requestData>([](IDispatch* self, LONGLONG from, LONGLONG to,
                                                    LONG mode, VARIANT_BOOL flag,
                                                    IDispatch* channels) -> HRESULT {
        at(self).numbers = {from, to, mode, flag};
        at(self).other = &at(channels);
        return S_OK;
    });
    const auto channels = list.proxy<IHostChannelList>();
    object.proxy<IHostVisualControl>()->requestData({2, 46}, {-1, -2}, 0, true, *channels);
    // The offset in the high half, the block in the low one.
    const std::int64_t from = 46 * 0x100000000 + 2;
    const std::int64_t to = static_cast<std::int64_t>(0xFFFFFFFE'FFFFFFFFU);
    EXPECT_EQ(object.numbers, (std::vector<std::int64_t>{from, to, 0, -1}));
    EXPECT_EQ(object.other, &list);
    EXPECT_EQ(list.references, 1U);  // borrowed for the call: only the proxy's own is left
}

TEST(Crossing, AnythingButZeroIsTrueInAResult) {
    RawObject object;
    const auto app = object.proxy<IHostApp>();
    for (const auto& [answer, isTrue] :
         std::vector<std::pair<std::int64_t, bool>>{{-1, true}, {1, true}, {2, true}, {0, false}}) {
        object.numbers = {answer};
        object.put<&IHostApp::isAcquiring>([](IDispatch* self, VARIANT_BOOL* truth) -> HRESULT {
            *truth = static_cast<VARIANT_BOOL>(at(self).numbers[0]);
            return S_OK;
        });
        EXPECT_EQ(app->isAcquiring(), isTrue) << answer;
    }
}

TEST(Crossing, ResultsAreZeroOrNullBeforeTheCall) {
    RawObject object;
    object.put<&IHostChannel::getSampleCount>([](IDispatch* self, LONG* number) -> HRESULT {
        at(self).numbers.push_back(*number);
        return S_OK;
    });
    object.put<&IHostChannel::getName>([](IDispatch* self, BSTR* text) -> HRESULT {
        at(self).numbers.push_back(*text == nullptr);
        return S_OK;
    });
    object.put<&IHostChannel::getAxes>([](IDispatch* self, IDispatch** axes) -> HRESULT {
        at(self).numbers.push_back(*axes == nullptr);
        return S_OK;
    });
    const auto channel = object.proxy<IHostChannel>();
    EXPECT_EQ(channel->getSampleCount(), 0);
    EXPECT_EQ(channel->getName(), L"");
    EXPECT_FALSE(channel->getAxes());
    EXPECT_EQ(object.numbers, (std::vector<std::int64_t>{0, 1, 1}));
}

TEST(Crossing, TextKeepsEveryCharacterBothWays) {
    RawObject object;
    object.put<&IHostProperties::getValue>([](IDispatch* self, BSTR name, BSTR* value) -> HRESULT {
        at(self).texts.emplace_back(name, ::SysStringLen(name));
        *value = ::SysAllocStringLen(L"a\0\xD83D\xDE00", 4);
        return S_OK;
    });
    const std::wstring name(L"x\0y", 3);
    EXPECT_EQ(object.proxy<IHostProperties>()->getValue(name), std::wstring(L"a\0\xD83D\xDE00", 4));
    EXPECT_EQ(object.texts, std::vector<std::wstring>{name});
}

TEST(Crossing, NullTextIsEmpty) {
    RawObject object;
    object.put<&IHostProperties::getValue>([](IDispatch*, BSTR, BSTR*) -> HRESULT { return S_OK; });
    EXPECT_EQ(object.proxy<IHostProperties>()->getValue(L""), L"");
}

TEST(Crossing, HostMayReplaceATextThatGoesBothWays) {
    RawObject object;
    object.put<&IHostVisualControl::editText>(
        [](IDispatch* self, LONG x, LONG y, BSTR* text, VARIANT_BOOL* accepted) -> HRESULT {
            at(self).numbers = {x, y};
            at(self).texts = {*text};
            ::SysFreeString(*text);
            *text = ::SysAllocString(L"2,5");
            *accepted = VARIANT_TRUE;
            return S_OK;
        });
    std::wstring text = L"1.0";
    EXPECT_TRUE(object.proxy<IHostVisualControl>()->editText(7, -8, text));
    EXPECT_EQ(text, L"2,5");
    EXPECT_EQ(object.texts, std::vector<std::wstring>{L"1.0"});
    EXPECT_EQ(object.numbers, (std::vector<std::int64_t>{7, -8}));
}

TEST(Crossing, HostMayPutNullIntoATextThatGoesBothWays) {
    RawObject object;
    object.put<&IHostVisualControl::editText>(
        [](IDispatch*, LONG, LONG, BSTR* text, VARIANT_BOOL* accepted) -> HRESULT {
            ::SysFreeString(*text);
            *text = nullptr;
            *accepted = VARIANT_TRUE;
            return S_OK;
        });
    std::wstring text = L"1.0";
    EXPECT_TRUE(object.proxy<IHostVisualControl>()->editText(0, 0, text));
    EXPECT_EQ(text, L"");
}

TEST(Crossing, TextOfAFailedCallIsFreed) {
    RawObject object;
    object.put<&IHostChannel::getName>([](IDispatch* self, BSTR* text) -> HRESULT {
        // Large enough for the heap to give its pages back with it.
        *text = ::SysAllocStringLen(nullptr, 4'000'000);
        at(self).numbers = {reinterpret_cast<std::intptr_t>(*text)};
        return E_FAIL;
    });
    const auto channel = object.proxy<IHostChannel>();
    EXPECT_EQ(failureOf([&] { channel->getName(); }).status, 0x80004005U);
    ASSERT_NE(object.numbers.at(0), 0);
    MEMORY_BASIC_INFORMATION pages{};
    ::VirtualQuery(reinterpret_cast<void*>(object.numbers[0] + 4'000'000), &pages, sizeof(pages));
    EXPECT_EQ(pages.State, static_cast<DWORD>(MEM_FREE));
}

TEST(Crossing, ObjectOfAFailedCallIsReleased) {
    RawObject object;
    RawObject data;
    object.other = &data;
    object.put<&IHostApp::getData>([](IDispatch* self, IDispatch** found) -> HRESULT {
        *found = at(self).other->get();
        (*found)->AddRef();
        return E_FAIL;
    });
    const auto app = object.proxy<IHostApp>();
    EXPECT_EQ(failureOf([&] { app->getData(); }).status, 0x80004005U);
    EXPECT_EQ(data.references, 0U);
    EXPECT_TRUE(data.asked.empty());
}

TEST(Crossing, HostMayChangeANumberThatGoesBothWays) {
    RawObject object;
    object.put<&IHostChannel::getValueAtTime>([](IDispatch*, double seconds, LONG* cursor,
                                                 SHORT mode, LONG element, LONG component,
                                                 double* value) -> HRESULT {
        *value = seconds + mode + 10 * element + 100 * component;
        *cursor += 5;
        return S_OK;
    });
    std::int32_t cursor = -1;
    // 0.5 + 0 + 10 * 2 + 100 * 3
    EXPECT_EQ(object.proxy<IHostChannel>()->getValueAtTime(0.5, cursor, 0, 2, 3), 320.5);
    EXPECT_EQ(cursor, 4);
}

TEST(Crossing, PointsOfAPolygonAreAnArrayOfLongsFromZero) {
    RawObject object;
    object.put<&IHostCanvas::Polygon>(
        [](IDispatch* self, SAFEARRAY* points, LONG count) -> HRESULT {
            LONG lower = -1;
            VARTYPE type = VT_EMPTY;
            ::SafeArrayGetLBound(points, 1, &lower);
            ::SafeArrayGetVartype(points, &type);
            at(self).numbers = {::SafeArrayGetDim(points), lower, type, count};
            for (LONG i = 0; i < 2 * count; ++i)
                at(self).numbers.push_back(static_cast<LONG*>(points->pvData)[i]);
            return S_OK;
        });
    object.proxy<IHostCanvas>()->Polygon({1, 2, 3, -4}, 2);
    EXPECT_EQ(object.numbers, (std::vector<std::int64_t>{1, 0, VT_I4, 2, 1, 2, 3, -4}));
}

TEST(Crossing, EmptyPolygonIsAnEmptyArray) {
    RawObject object;
    object.put<&IHostCanvas::Polygon>([](IDispatch* self, SAFEARRAY* points, LONG) -> HRESULT {
        LONG upper = 7;
        ::SafeArrayGetUBound(points, 1, &upper);
        at(self).numbers = {upper};
        return S_OK;
    });
    object.proxy<IHostCanvas>()->Polygon({}, 0);
    EXPECT_EQ(object.numbers, std::vector<std::int64_t>{-1});
}

TEST(Crossing, VersionComesThroughFivePointersOfWhichTheOuterOnesAreZeroed) {
    RawObject object;
    object.put<&IHostApp::getVersion>([](IDispatch* self, UnusedVersionItem* first, LONG* major,
                                         LONG* minor, LONG* build,
                                         UnusedVersionItem* last) -> HRESULT {
        const UnusedVersionItem zero;
        at(self).numbers = {first->bytes == zero.bytes, last->bytes == zero.bytes};
        first->bytes.fill(0xFF);
        last->bytes.fill(0xFF);
        *major = 3;
        *minor = 8;
        *build = 19051300;
        return S_OK;
    });
    const HostVersion version = object.proxy<IHostApp>()->getVersion();
    EXPECT_EQ(version.major, 3);
    EXPECT_EQ(version.minor, 8);
    EXPECT_EQ(version.build, 19051300);
    EXPECT_EQ(object.numbers, (std::vector<std::int64_t>{1, 1}));
}

TEST(Crossing, PositionComesAsTwoLongsBlockFirst) {
    RawObject object;
    object.put<&IHostData::getFirstPosition>([](IDispatch*, DataPosition* position) -> HRESULT {
        const LONG record[] = {5, -6};
        std::memcpy(position, record, sizeof(record));
        return S_OK;
    });
    EXPECT_EQ(object.proxy<IHostData>()->getFirstPosition(), (DataPosition{5, -6}));
}

TEST(Crossing, ReturnedObjectIsTheCallersToRelease) {
    RawObject object;
    RawObject data;
    object.other = &data;
    object.put<&IHostApp::getData>([](IDispatch* self, IDispatch** found) -> HRESULT {
        *found = at(self).other->get();
        (*found)->AddRef();
        return S_OK;
    });
    {
        const auto held = object.proxy<IHostApp>()->getData();
        EXPECT_EQ(data.references, 1U);
        const auto second = held;
        EXPECT_EQ(data.references, 2U);  // each reference of ours is one of the host's
    }
    EXPECT_EQ(data.references, 0U);
    EXPECT_EQ(object.references, 0U);
}

TEST(Crossing, BaseObjectIsAskedForTheInterfaceThatIsWanted) {
    RawObject object;
    RawObject found;
    object.other = &found;
    object.put<&IHostPropertyPage::FindControl>(
        [](IDispatch* self, BSTR, IUnknown** base) -> HRESULT {
            *base = at(self).other->get();
            (*base)->AddRef();
            return S_OK;
        });
    const auto base = object.proxy<IHostPropertyPage>()->FindControl(L"x");
    EXPECT_TRUE(base.offered<IHostPropertyControl>());
    EXPECT_EQ(found.asked, std::vector<Guid>{IHostPropertyControl::Identifier});
    found.refuses = true;
    EXPECT_FALSE(base.offered<IHostCheckBox>());
    EXPECT_EQ(found.references, 1U);
}

}  // namespace
}  // namespace Meridax::Host::Binary
