#include "platform/linux/LibsecretStore.h"

#include "platform/linux/Keyring.h"

#include <QPromise>

#include <condition_variable>
#include <deque>
#include <future>
#include <mutex>
#include <thread>

namespace quillon {

namespace {

/// How long start-up waits for the keyring's answer.
constexpr std::chrono::seconds existsLimit{5};

} // namespace

/// The thread on which the keyring is asked, one operation after another.
class LibsecretStore::Worker {
public:
    using Job = std::function<void(Keyring&)>;

    Worker() : m_thread{[this] { run(); }} { m_started.get_future().wait(); }
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    ~Worker() {
        {
            const std::lock_guard lock{m_mutex};
            m_closing = true;
            m_steps->stop();
        }
        m_changed.notify_one();
        m_thread.join();
    }

    void add(Job job) {
        {
            const std::lock_guard lock{m_mutex};
            m_jobs.push_back(std::move(job));
        }
        m_changed.notify_one();
    }

    /// Runs the operation on the thread; its result becomes the future's.
    template <typename Operation>
    auto perform(Operation operation) {
        using Result = decltype(operation(std::declval<Keyring&>()));
        const auto promise = std::make_shared<QPromise<Result>>();
        promise->start();
        add([promise, operation = std::move(operation)](Keyring& keyring) {
            if constexpr (std::is_void_v<Result>) {
                operation(keyring);
            } else {
                promise->addResult(operation(keyring));
            }
            promise->finish();
        });
        return promise->future();
    }

private:
    /// Once the steps are stopped, the jobs that are left fail at once.
    void run() {
        GlibSteps steps;
        m_steps = &steps;
        m_started.set_value();
        std::unique_lock lock{m_mutex};
        for (;;) {
            m_changed.wait(lock, [this] { return m_closing || !m_jobs.empty(); });
            if (m_jobs.empty()) return;
            const Job job = std::exchange(m_jobs.front(), nullptr);
            m_jobs.pop_front();
            lock.unlock();
            {
                Keyring keyring{steps};
                job(keyring);
            }
            steps.settle();
            lock.lock();
        }
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Job> m_jobs;
    bool m_closing = false;
    GlibSteps* m_steps = nullptr;
    std::promise<void> m_started;
    std::thread m_thread;
};

LibsecretStore::LibsecretStore() : m_worker{std::make_unique<Worker>()} {}

LibsecretStore::~LibsecretStore() = default;

QFuture<bool> LibsecretStore::save(KeychainItem item, std::string value) {
    return m_worker->perform([item = std::move(item), value = std::move(value)](Keyring& keyring) {
        return keyring.save(item, value);
    });
}

QFuture<std::optional<std::string>> LibsecretStore::read(KeychainItem item) {
    return m_worker->perform(
        [item = std::move(item)](Keyring& keyring) { return keyring.read(item); });
}

bool LibsecretStore::exists(const KeychainItem& item) {
    const auto promise = std::make_shared<std::promise<bool>>();
    auto answer = promise->get_future();
    m_worker->add([promise, item](Keyring& keyring) { promise->set_value(keyring.exists(item)); });
    return answer.wait_for(existsLimit) == std::future_status::ready && answer.get();
}

QFuture<void> LibsecretStore::remove(KeychainItem item) {
    return m_worker->perform([item = std::move(item)](Keyring& keyring) { keyring.remove(item); });
}

} // namespace quillon
