#include "views/Follower.h"
#include "views/Spring.h"

#include <QObject>

#include <gtest/gtest.h>

#include <cmath>

using namespace quillmere;
using namespace Qt::StringLiterals;

namespace {

constexpr double tau = 6.283185307179586;

/// The equation of motion, in small steps.
SpringState integrated(const Spring &spring, SpringState state, double seconds)
{
    constexpr double step = 1e-5;
    const double frequency = tau / spring.response;
    const auto steps = std::lround(seconds / step);
    for (long i = 0; i < steps; ++i) {
        const double force =
            -frequency * frequency * state.offset - 2 * spring.damping * frequency * state.velocity;
        state.velocity += force * step;
        state.offset += state.velocity * step;
    }
    return state;
}

TEST(SpringTest, FollowsTheEquationOfMotion)
{
    const struct {
        Spring spring;
        SpringState start;
    } cases[] = {
        {{}, {.offset = -174}},
        {{}, {.offset = 20, .velocity = 900}},
        {{}, {.velocity = -300}},
        {{.response = 0.24, .damping = 0.5}, {.offset = 8}},
    };
    for (const auto &[spring, start] : cases) {
        for (const double time : {0.0, 0.03, 0.1, 0.16, 0.3, 0.6}) {
            const SpringState expected = integrated(spring, start, time);
            const SpringState state = springAt(spring, start, time);
            EXPECT_NEAR(state.offset, expected.offset, 0.1) << time;
            EXPECT_NEAR(state.velocity, expected.velocity, 4) << time;
        }
    }
}

TEST(SpringTest, RestsWhenItSaysSo)
{
    const SpringState start{.offset = -174, .velocity = 500};
    const double rest = settlingTime({}, start, 0.02);
    EXPECT_LT(rest, 0.8);
    for (int milliseconds = 0; milliseconds < 2000; ++milliseconds)
        ASSERT_LE(std::abs(springAt({}, start, rest + milliseconds / 1000.0).offset), 0.02);
    EXPECT_EQ(settlingTime({}, {}, 0.02), 0);
}

/// A property on the way to a value, at times that the test chooses.
class FollowerTest : public testing::Test
{
protected:
    void SetUp() override
    {
        follower.setTarget(QQmlProperty(&object, u"objectName"_s));
        follower.setTo(100);
        follower.componentComplete();
    }

    double value() const { return object.objectName().toDouble(); }
    bool isMoving() const { return follower.state() == QAbstractAnimation::Running; }

    QObject object;
    Follower follower;
};

TEST_F(FollowerTest, EndsExactlyOnItsTargetAndStops)
{
    for (const double target : {300.0, 126.25, 126.26}) {
        follower.setTo(target);
        follower.setCurrentTime(follower.duration());
        EXPECT_EQ(value(), target);
        EXPECT_FALSE(isMoving());
    }
}

TEST_F(FollowerTest, NewTargetOnTheWayKeepsPlaceAndSpeed)
{
    follower.setTo(300);
    EXPECT_GT(value(), 100.5) << "the first frame after rest moves already";
    follower.setCurrentTime(79);
    const double before = value();
    follower.setCurrentTime(80);
    const double at = value();
    follower.setTo(126);
    follower.setCurrentTime(1);
    EXPECT_GT(at, before + 0.5);
    EXPECT_NEAR(value() - at, at - before, 0.35); // still outward, though the target is behind it
    follower.setCurrentTime(follower.duration());
    EXPECT_EQ(value(), 126);
}

TEST_F(FollowerTest, DisabledJumpsAndComesToRest)
{
    follower.setTo(300);
    follower.setCurrentTime(60);
    follower.setEnabled(false);
    EXPECT_EQ(value(), 300);
    EXPECT_FALSE(isMoving());
    follower.setTo(126);
    EXPECT_EQ(value(), 126);
    EXPECT_FALSE(isMoving());
    follower.setEnabled(true);
    EXPECT_EQ(value(), 126);
}

TEST_F(FollowerTest, WaitsOnlyOnTheWayUp)
{
    follower.setProperty("curve", Follower::Linear);
    follower.setProperty("riseDelay", 120);
    follower.setProperty("riseDuration", 100);
    follower.setProperty("fallDuration", 80);
    follower.setTo(200);
    const std::pair<int, double> rise[] = {{103, 100}, {154, 150}, {204, 200}};
    for (const auto &[time, expected] : rise) {
        follower.setCurrentTime(time);
        EXPECT_DOUBLE_EQ(value(), expected) << time;
    }
    follower.setTo(100);
    follower.setCurrentTime(24);
    EXPECT_DOUBLE_EQ(value(), 150);
}

TEST_F(FollowerTest, IgnoresWhatIsNoNumber)
{
    follower.setTo(std::nan(""));
    follower.setTo(INFINITY);
    EXPECT_EQ(value(), 100);
    EXPECT_FALSE(isMoving());
}

} // namespace
