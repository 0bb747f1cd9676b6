#include "platform/linux/desktop/LinuxAppearance.h"

#include "support/Await.h"
#include "support/SessionBus.h"

#include <QDBusMetaType>
#include <QDataStream>

#include <cmath>

namespace quillon::test {
namespace {

using Scheme = Appearance::Scheme;
using Settings = QMap<QString, QVariantMap>;

const QString common = QStringLiteral("org.freedesktop.appearance");
const QString gnome = QStringLiteral("org.gnome.desktop.interface");
const QString kde = QStringLiteral("org.kde.kdeglobals.KDE");

TEST(AppearanceSettings, HaveASenseWhateverTheValuesAre) {
    const AppearanceSettings::Key scheme{"org.freedesktop.appearance", "color-scheme"};
    const AppearanceSettings::Key reduced{"org.freedesktop.appearance", "reduced-motion"};
    const AppearanceSettings::Key moving{"org.gnome.desktop.interface", "enable-animations"};
    const AppearanceSettings::Key text{"org.gnome.desktop.interface", "text-scaling-factor"};
    const AppearanceSettings::Key factor{"org.kde.kdeglobals.KDE", "AnimationDurationFactor"};
    const AppearanceSettings::Key theme{"", "Net/ThemeName"};
    using Values = std::vector<std::pair<AppearanceSettings::Key, QVariant>>;
    const std::tuple<const char*, Values, Appearance> cases[]{
        {"a scheme of the future", {{scheme, 3U}}, {}},
        {"dark in the theme alone",
         {{scheme, 0U}, {theme, QStringLiteral("Yaru-Dark")}},
         {.scheme = Scheme::dark}},
        {"light, and a dark theme",
         {{scheme, 2U}, {theme, QStringLiteral("Adwaita-dark")}},
         {.scheme = Scheme::light}},
        {"a theme of darkness", {{theme, QStringLiteral("Darkness")}}, {}},
        {"reduced by one", {{reduced, 0U}, {moving, false}}, {.animations = false}},
        {"reduced by the other", {{reduced, 1U}, {moving, true}}, {.animations = false}},
        {"no duration", {{factor, QStringLiteral("0")}, {moving, true}}, {.animations = false}},
        {"huge text", {{text, 100.0}}, {.textScale = 1.5}},
        {"no number", {{text, std::nan("")}}, {}},
        {"text in words", {{text, QStringLiteral("1.25")}}, {}},
    };
    for (const auto& [name, values, appearance] : cases) {
        AppearanceSettings settings;
        for (const auto& [key, value] : values)
            settings.set(key, value);
        EXPECT_EQ(settings.appearance(), appearance) << name;
    }
}

/// A property of three settings: a number, a colour and a text.
QByteArray xSettingsProperty(QDataStream::ByteOrder order) {
    QByteArray bytes;
    QDataStream out{&bytes, QIODevice::WriteOnly};
    out.setByteOrder(order);
    const auto name = [&out](quint8 type, const QByteArray& text) {
        out << type << quint8{0} << static_cast<quint16>(text.size());
        out.writeRawData(text.constData(), static_cast<int>(text.size()));
        for (qsizetype i = text.size(); i % 4 != 0; ++i)
            out << quint8{0};
        out << quint32{7};
    };
    out << quint8{order == QDataStream::BigEndian} << quint8{0} << quint16{0} << quint32{1};
    out << quint32{3};
    name(0, "Gtk/EnableAnimations");
    out << qint32{-1};
    name(2, "Some/Color");
    out << quint64{0x0102030405060708};
    name(1, "Net/ThemeName");
    out << quint32{5};
    out.writeRawData("X-d\xc3\xa4\0\0", 8);
    return bytes;
}

TEST(XSettings, AreReadInBothByteOrdersAndUpToAFault) {
    for (const auto order : {QDataStream::LittleEndian, QDataStream::BigEndian}) {
        const QByteArray whole = xSettingsProperty(order);
        const XSettingsValues expected{{"Gtk/EnableAnimations", -1},
                                       {"Net/ThemeName", QStringLiteral("X-dä")}};
        EXPECT_EQ(parseXSettings(whole), expected);
        for (qsizetype length = 0; length < whole.size() - 3; ++length)
            EXPECT_LE(parseXSettings(whole.first(length)).size(), 1U) << length;
        QByteArray endless = whole;
        endless.replace(whole.size() - 12, 4, QByteArray{4, '\xff'});
        EXPECT_EQ(parseXSettings(endless).size(), 1U);
    }
}

/// A settings portal that answers ReadAll with what it is given.
struct FakePortal : BusService {
    explicit FakePortal(Answers answers)
        : BusService{"org.freedesktop.portal.Desktop", std::move(answers)} {}

    void change(const QString& space, const char* key, const QVariant& value) const {
        sendSignal("/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings",
                   "SettingChanged",
                   {space, QLatin1String{key}, QVariant::fromValue(QDBusVariant{value})});
    }
};

class LinuxAppearanceTest : public testing::Test {
protected:
    LinuxAppearanceTest() {
        qDBusRegisterMetaType<Settings>();
        portal_.follow([this](const Appearance& appearance) { told.push_back(appearance); });
    }
    ~LinuxAppearanceTest() override {
        QDBusConnection::disconnectFromBus(QStringLiteral("program"));
    }

    [[nodiscard]] bool isTold(const Appearance& appearance) const {
        return waitUntil([&] { return !told.empty() && told.back() == appearance; });
    }

    std::vector<Appearance> told;

private:
    SessionBus daemon_;
    LinuxAppearance portal_{QDBusConnection::connectToBus(
        qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("program"))};
};

TEST_F(LinuxAppearanceTest, FollowsAPortalThatComesLateAndAgain) {
    const Settings dark{{common, {{QStringLiteral("color-scheme"), 1U}}},
                        {gnome,
                         {{QStringLiteral("text-scaling-factor"), 1.25},
                          {QStringLiteral("enable-animations"), false},
                          {QStringLiteral("cursor-size"), 24}}}};
    const BusService::Answers answers{{"ReadAll", QVariantList{QVariant::fromValue(dark)}}};
    std::optional<FakePortal> portal{answers};
    EXPECT_TRUE(isTold({.scheme = Scheme::dark, .animations = false, .textScale = 1.25}));
    portal->change(common, "color-scheme", 2U);
    EXPECT_TRUE(isTold({.scheme = Scheme::light, .animations = false, .textScale = 1.25}));
    portal->change(gnome, "enable-animations", true);
    portal->change(gnome, "text-scaling-factor", 1.0);
    EXPECT_TRUE(isTold({.scheme = Scheme::light, .animations = true}));
    const std::size_t changes = told.size();
    portal->change(gnome, "cursor-size", 48);
    portal->change(common, "color-scheme", 2U);
    portal->change(kde, "AnimationDurationFactor", QStringLiteral("0"));
    EXPECT_TRUE(isTold({.scheme = Scheme::light, .animations = false}));
    EXPECT_EQ(told.size(), changes + 1) << "what changes nothing is not told";
    portal.reset();
    portal.emplace(answers);
    EXPECT_TRUE(isTold({.scheme = Scheme::dark, .animations = false, .textScale = 1.25}));
}

TEST_F(LinuxAppearanceTest, TakesNoHarmFromAPortalThatHangsOrTalksNonsense) {
    const BusService::Answers nonsense{{"ReadAll", QVariantList{QStringLiteral("nonsense")}}};
    for (const bool hangs : {true, false}) {
        told.clear();
        const FakePortal portal{hangs ? BusService::Answers{} : nonsense};
        EXPECT_TRUE(waitUntil([&] { return !portal.calls("ReadAll").isEmpty(); }));
        portal.change(common, "color-scheme", hangs ? 2U : 1U);
        EXPECT_TRUE(isTold({.scheme = hangs ? Scheme::light : Scheme::dark}));
    }
}

} // namespace
} // namespace quillon::test
