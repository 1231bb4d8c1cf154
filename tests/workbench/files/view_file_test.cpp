#include "workbench/files/view_file.h"

#include <random>

#include "tests/workbench/recording/scratch_folder.h"

namespace Rotavue::Workbench {
namespace {

class ViewFileTest : public ScratchFolder {
protected:
    std::string faultOf(std::string_view text) const {
        return messageOf([&] { readView(write("v.rotavue", text)); });
    }
    // What is wrong with a view whose one plane has this beside what it must have.
    std::string planeFault(const std::string& members) const {
        return faultOf(
            R"({"rotavueView":1,"planes":[{"recording":"a.csv","curves":[],"setup":{},)" + members +
            "}]}");
    }
    View full() const {
        View view;
        ViewPlane& plane = view.planes.emplace_back();
        plane.recording = at("data/pump.csv");
        plane.options.x.angle = 45.0;
        plane.options.rotation = Rotation::CounterClockwise;
        plane.curves = {{CurveKind::Raw},
                        {CurveKind::ByAngle},
                        {CurveKind::NotFirst},
                        {CurveKind::Harmonic, {0.5, 1.0, 2.0}},
                        {CurveKind::Reference, {}, at("last-year.json").string()}};
        plane.curveOptions.speed = 2975.5;
        plane.curveOptions.shaftCenter = {0.25, RestPosition::BottomOfClearance, TimeSpan{0.5, 2.0},
                                          PositionLabels::Time};
        plane.setup = {{"graphType", "1"}, {"minXValue", "-12.500000000000000"}};
        plane.compensation = RunOutSource{CompensationForm::Waveform, {1.0, 3.0}, at("slow.csv")};
        view.cursor = 1.0625;
        return view;
    }
};

TEST_F(ViewFileTest, ReadsBackAllThatItWrites) {
    const View before = full();
    writeView(at("v.rotavue"), before);
    const View after = readView(at("v.rotavue"));
    ASSERT_EQ(after.planes.size(), 1u);
    const ViewPlane& plane = after.planes[0];
    EXPECT_EQ(after.cursor, 1.0625);
    EXPECT_EQ(plane.recording, at("data/pump.csv"));
    EXPECT_EQ(plane.options.x.angle, 45.0);
    EXPECT_EQ(plane.options.rotation, Rotation::CounterClockwise);
    EXPECT_EQ(plane.curves, before.planes[0].curves);
    EXPECT_EQ(plane.setup, before.planes[0].setup);
    EXPECT_EQ(plane.curveOptions.speed, 2975.5);
    EXPECT_EQ(plane.curveOptions.reference.x.angle, 45.0);
    const ShaftCenterChoice& centre = plane.curveOptions.shaftCenter;
    EXPECT_EQ(centre.interval, 0.25);
    EXPECT_EQ(centre.rest, RestPosition::BottomOfClearance);
    EXPECT_EQ(centre.restSpan->to, 2.0);
    EXPECT_EQ(centre.labels, PositionLabels::Time);
    ASSERT_TRUE(plane.compensation);
    EXPECT_EQ(plane.compensation->form, CompensationForm::Waveform);
    EXPECT_EQ(plane.compensation->span.from, 1.0);
    EXPECT_EQ(plane.compensation->slowRoll, at("slow.csv"));
}

TEST_F(ViewFileTest, KeepsTheColoursOfCurvesAndGivesNoneWhereOneIsMissing) {
    View view = full();
    view.planes[0].colors = {0, 6, 7, 5, 3};
    writeView(at("v.rotavue"), view);
    EXPECT_EQ(readView(at("v.rotavue")).planes[0].colors,
              (std::vector<std::size_t>{0, 6, 7, 5, 3}));
    write("one.rotavue", R"({"rotavueView":1,"planes":[{"recording":"a.csv","setup":{},
        "curves":[{"kind":"raw","color":2},{"kind":"average"}]}]})");
    EXPECT_TRUE(readView(at("one.rotavue")).planes[0].colors.empty());
    EXPECT_EQ(faultOf(R"({"rotavueView":1,"planes":[{"recording":"a.csv","setup":{},
        "curves":[{"kind":"raw","color":8}]}]})"),
              "v.rotavue: found 8 at /planes/0/curves/0/color, allowed: a number from 0 to 7");
}

TEST_F(ViewFileTest, KeepsWhichMachineFileCounts) {
    using File = std::optional<std::filesystem::path>;
    for (const File& file : {File{}, File{""}, File{at("data/other.json")}}) {
        View view = full();
        view.planes[0].options.machineFile = file;
        writeView(at("v.rotavue"), view);
        const ViewPlane plane = readView(at("v.rotavue")).planes[0];
        EXPECT_EQ(plane.options.machineFile, file);
        EXPECT_EQ(plane.curveOptions.reference.machineFile, file);
    }
}

TEST_F(ViewFileTest, ItsFolderMayMoveWithItsRecordings) {
    writeView(at("v.rotavue"), full());
    std::filesystem::create_directory(at("moved"));
    std::filesystem::rename(at("v.rotavue"), at("moved/v.rotavue"));
    EXPECT_EQ(readView(at("moved/v.rotavue")).planes[0].recording, at("moved/data/pump.csv"));
}

TEST_F(ViewFileTest, ReplacesTheOldFileAndLeavesNothingElse) {
    writeView(at("v.rotavue"), full());
    writeView(at("v.rotavue"), View{});
    EXPECT_TRUE(readView(at("v.rotavue")).planes.empty());
    const auto entries = std::filesystem::directory_iterator(at("v.rotavue").parent_path());
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 1);
}

TEST_F(ViewFileTest, SaysWhereItCannotBeWritten) {
    EXPECT_EQ(messageOf([&] { writeView(at("none/v.rotavue"), View{}); }),
              "none/v.rotavue: found \"No such file or directory\", allowed: a file to write to");
    View view;
    view.planes.resize(1);
    view.planes[0].recording = at("\xFF.csv");
    EXPECT_EQ(messageOf([&] { writeView(at("v.rotavue"), view); }),
              "v.rotavue: found a name that is not in UTF-8, allowed: recordings with such names");
    EXPECT_FALSE(std::filesystem::exists(at("v.rotavue")));
}

TEST_F(ViewFileTest, RefusesWhatIsNoView) {
    EXPECT_EQ(faultOf(""), "v.rotavue:1:1: found the end of the file, allowed: a JSON object");
    EXPECT_EQ(faultOf("{\n  x"), "v.rotavue:2:3: found \"x\", allowed: a JSON object");
    EXPECT_EQ(faultOf("[]"),
              "v.rotavue: found a list of 0 at the top level, allowed: an object "
              "with rotavueView, cursor and planes");
    EXPECT_EQ(faultOf("{}"),
              "v.rotavue: found an object at the top level, allowed: one with the "
              "member \"rotavueView\"");
    EXPECT_EQ(faultOf(R"({"rotavueView":2,"planes":[]})"),
              "v.rotavue: found 2 at /rotavueView, allowed: a number from 1 to 1");
    EXPECT_EQ(faultOf(R"({"rotavueView":1,"planes":[],"cursr":1})"),
              "v.rotavue: found the unknown member \"/cursr\" (the nearest name is \"cursor\"), "
              "allowed: rotavueView, cursor and planes");
    EXPECT_EQ(faultOf(R"({"rotavueView":1,"planes":[],"cursor":1e999})"),
              "v.rotavue: found a number beyond all bounds, allowed: a JSON object");
}

TEST_F(ViewFileTest, NamesThePlaceOfWhatIsWrongInAPlane) {
    EXPECT_EQ(planeFault(R"("speed":"fast")"),
              "v.rotavue: found \"fast\" at /planes/0/speed, allowed: a number from 0 to 1e+09");
    EXPECT_EQ(planeFault(R"("setup":{"graphTyp":"1"})"),
              "v.rotavue: found \"1\" at /planes/0/setup/graphTyp, allowed: settings alone; no "
              "setting \"graphTyp\" (the nearest is \"graphType\")");
    EXPECT_EQ(planeFault(R"("setup":{"graphType":1})"),
              "v.rotavue: found 1 at /planes/0/setup/graphType, allowed: a text of at most 4096 "
              "characters");
    EXPECT_EQ(planeFault(R"("curves":[{"kind":"orbit"}])"),
              "v.rotavue: found \"orbit\" at /planes/0/curves/0/kind, allowed: raw, byAngle, "
              "not1X, average, orders, below1X, reference and shaftCentre");
    EXPECT_EQ(
        planeFault(R"("curves":[{"kind":"orders","orders":[]}])"),
        "v.rotavue: found a list of 0 at /planes/0/curves/0/orders, allowed: a list of 1 to 64");
    EXPECT_EQ(planeFault(R"("shaftCentre":{"restSpan":[2,1]})"),
              "v.rotavue: found a list of 2 at /planes/0/shaftCentre/restSpan, allowed: two times, "
              "the second one later");
    EXPECT_EQ(planeFault(R"("options":{"x":{"angle":"up"}})"),
              "v.rotavue: found \"up\" at /x/angle, allowed: a number from -360 to 360, or a text "
              "such as \"45 R\" or \"45 L\"");
    EXPECT_EQ(planeFault(R"("recording":"")"),
              "v.rotavue: found \"\" at /planes/0/recording, allowed: the name of a file");
}

TEST_F(ViewFileTest, DeepNestingEndsInALine) {
    const std::string deep(1'000'000, '[');
    EXPECT_EQ(faultOf(deep), "v.rotavue: found values nested too deep, allowed: 8 levels");
}

// 45,000 objects in one list, and as many as a file may have room for.
TEST_F(ViewFileTest, LongListsEndInALine) {
    const auto objects = [](std::size_t count) {
        std::string text = R"({"planes":[{})";
        for (std::size_t i = 1; i < count; ++i)
            text += ",{}";
        return text + R"(],"rotavueView":1})";
    };
    EXPECT_EQ(faultOf(objects(45'000)),
              "v.rotavue: found a list of 45000 at /planes, allowed: a list of 0 to 64");
    EXPECT_EQ(faultOf(objects(1'398'000)),
              "v.rotavue: found too many lists, objects and texts, allowed: at most 100000");
}

TEST_F(ViewFileTest, AnyBytesEndInAViewOrALine) {
    writeView(at("whole.rotavue"), full());
    std::ifstream stream(at("whole.rotavue"));
    const std::string whole((std::istreambuf_iterator<char>(stream)), {});
    std::mt19937 random(20);
    for (int i = 0; i < 1500; ++i) {
        std::string text = whole;
        for (std::size_t n = 1 + random() % 4; n > 0; --n)
            text[random() % text.size()] = "{}[]\":,-9e\0\xFFx"[random() % 14];
        EXPECT_EQ(faultOf(text).find('\n'), std::string::npos);
    }
}

TEST_F(ViewFileTest, IsToldByItsName) {
    EXPECT_TRUE(isViewName("a/b.rotavue"));
    EXPECT_FALSE(isViewName("a/b.csv"));
    EXPECT_FALSE(isViewName("rotavue"));
}

}  // namespace
}  // namespace Rotavue::Workbench
