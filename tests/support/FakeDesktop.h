#pragma once

#include "platform/HotKeys.h"
#include "platform/LoginItem.h"
#include "platform/SecretStore.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"

#include <QGuiApplication>
#include <QPromise>
#include <QWindow>

#include <map>
#include <set>
#include <utility>

namespace quillon::test {

/// Preferences in memory.
class FakeDefaults : public UserDefaults {
public:
    std::map<std::string, std::string, std::less<>> values;

    [[nodiscard]] std::optional<std::string> text(std::string_view key) const override {
        const auto found = values.find(key);
        return found == values.end() ? std::nullopt : std::optional{found->second};
    }
    void setText(std::string_view key, std::string_view value) override {
        values[std::string{key}] = value;
    }
    [[nodiscard]] std::optional<bool> flag(std::string_view key) const override {
        const auto stored = text(key);
        return stored ? std::optional{*stored == "true"} : std::nullopt;
    }
    void setFlag(std::string_view key, bool value) override {
        setText(key, value ? "true" : "false");
    }
    void remove(std::string_view key) override { values.erase(std::string{key}); }
    void removeAll() override { values.clear(); }
};

/// A keyring in memory that can be away, locked without the user unlocking it, or late.
class FakeSecrets : public SecretStore {
public:
    bool available = true;
    bool locked = false;
    /// Answers wait until the test calls answer().
    bool late = false;
    std::map<std::pair<std::string, std::string>, std::string> values;
    /// What watches the keyring, for the test to call.
    std::function<void()> changed;

    void answer() {
        late = false;
        for (const auto& question : std::exchange(waiting_, {}))
            question();
    }

    [[nodiscard]] QFuture<bool> save(KeychainItem item, std::string value) override {
        return reply<bool>([=, this] {
            if (available && !locked) values[{item.service, item.account}] = value;
            return available && !locked;
        });
    }
    [[nodiscard]] QFuture<SecretReading> read(KeychainItem item) override {
        return reply<SecretReading>([=, this] {
            const bool readable = look(item) == SecretAnswer::found;
            return SecretReading{look(item), readable ? values[{item.service, item.account}] : ""};
        });
    }
    [[nodiscard]] QFuture<SecretAnswer> find(KeychainItem item) override {
        return reply<SecretAnswer>([=, this] { return look(item); });
    }
    [[nodiscard]] QFuture<SecretAnswer> remove(KeychainItem item) override {
        return reply<SecretAnswer>([=, this] {
            if (look(item) == SecretAnswer::found) values.erase({item.service, item.account});
            return look(item);
        });
    }
    void watch(std::function<void()> whenChanged) override { changed = std::move(whenChanged); }

private:
    [[nodiscard]] SecretAnswer look(const KeychainItem& item) const {
        if (!available) return SecretAnswer::none;
        if (!values.contains({item.service, item.account})) return SecretAnswer::absent;
        return locked ? SecretAnswer::locked : SecretAnswer::found;
    }

    template <typename T>
    QFuture<T> reply(std::function<T()> operation) {
        if (!late) return QtFuture::makeReadyFuture(operation());
        const auto promise = std::make_shared<QPromise<T>>();
        promise->start();
        waiting_.push_back([=] {
            promise->addResult(operation());
            promise->finish();
        });
        return promise->future();
    }

    std::vector<std::function<void()>> waiting_;
};

/// A keyboard that the test presses, with keys that others may hold.
class FakeHotKeys : public HotKeys {
public:
    std::set<PhysicalKey> takenByOthers;
    std::multiset<PhysicalKey> registered;
    int handlersInstalled = 0;
    int offersTaken = 0;

    void press(PhysicalKey key) const {
        if (registered.contains(key) && handler_) handler_("token of the key");
    }

    void installHandler(std::function<void(const std::string&)> handler) override {
        ++handlersInstalled;
        handler_ = std::move(handler);
    }
    void observe(std::function<void(PhysicalKey, const HotKeyState&)> observer) override {
        observer_ = std::move(observer);
    }
    /// As after an answer of the desktop, or a change of the keyboard.
    void tell(PhysicalKey key, const HotKeyState& state) const { observer_(key, state); }
    [[nodiscard]] std::unique_ptr<Registration> registerHotKey(PhysicalKey key) override {
        // Like the real ones, refuses what this process itself holds.
        if (takenByOthers.contains(key) || registered.contains(key)) return nullptr;
        registered.insert(key);
        return std::make_unique<FakeRegistration>(*this, key);
    }

private:
    class FakeRegistration : public Registration {
    public:
        FakeRegistration(FakeHotKeys& owner, PhysicalKey key) : owner_{owner}, key_{key} {}
        ~FakeRegistration() override { owner_.registered.extract(key_); }
        void takeOffer() override { ++owner_.offersTaken; }

    private:
        FakeHotKeys& owner_;
        PhysicalKey key_;
    };

    std::function<void(const std::string&)> handler_;
    std::function<void(PhysicalKey, const HotKeyState&)> observer_;
};

/// A login item in memory, which can refuse.
class FakeLoginItem : public LoginItem {
public:
    Status current = Status::notRegistered;
    bool refuses = false;
    std::filesystem::path followed;

    [[nodiscard]] Status status() const override { return current; }
    bool registerItem() override {
        if (!refuses) current = Status::enabled;
        return !refuses;
    }
    bool unregisterItem() override {
        if (!refuses) current = Status::notRegistered;
        return !refuses;
    }
    void follow(const std::filesystem::path& executable) override { followed = executable; }
    void followIfLost(const std::filesystem::path& /*executable*/) override {}
};

/// A desktop that does as it is told and remembers it.
class FakeWorkspace : public Workspace {
public:
    std::vector<std::filesystem::path> running;
    bool trashWorks = true;
    bool pressed = false;
    QScreen* screen = QGuiApplication::primaryScreen();
    /// What happened, in order: "trash PATH", "list PATH", "exit 0"...
    std::vector<std::string> log;

    [[nodiscard]] std::vector<std::filesystem::path>
    runningApplications(std::string_view /*identifier*/) const override {
        return running;
    }
    [[nodiscard]] QFuture<bool> trash(std::filesystem::path path) override {
        log.push_back("trash " + path.native());
        if (trashWorks) std::filesystem::remove_all(path);
        return QtFuture::makeReadyFuture(trashWorks);
    }
    void listApplication(const std::filesystem::path& application) override {
        log.push_back("list " + application.native());
    }
    void unlistApplication() override { log.emplace_back("unlist"); }
    [[nodiscard]] QFuture<void> removeKeyBindings() override {
        log.emplace_back("unbind");
        return QtFuture::makeReadyFuture();
    }
    void activate() override { log.emplace_back("activate"); }
    void bringToFront(QWindow& window) override {
        log.emplace_back("front");
        window.raise();
        window.requestActivate();
    }
    void keepOffTaskBar(QWindow& /*window*/) override { log.emplace_back("off the task bar"); }
    [[nodiscard]] QScreen* screenInUse() const override { return screen; }
    [[nodiscard]] bool pointerPressed() const override { return pressed; }
    void openAfterExit(const std::filesystem::path& application) override {
        log.push_back("open " + application.native());
    }
    void terminate() override { log.emplace_back("terminate"); }
    void exitNow(int status) override { log.push_back("exit " + std::to_string(status)); }
};

} // namespace quillon::test
