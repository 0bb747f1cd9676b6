#include "platform/linux/keyring/LibsecretStore.h"

#include "platform/linux/keyring/Keyring.h"

#include <QPromise>

#include <condition_variable>
#include <deque>
#include <future>
#include <mutex>
#include <thread>

namespace quillon {

/// The thread that runs keyring operations, one after another.
class LibsecretStore::Worker {
public:
    using Job = std::function<void(Keyring&)>;

    explicit Worker(std::chrono::milliseconds limit) : limit_{limit}, thread_{[this] { run(); }} {
        started_.get_future().wait();
    }
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    ~Worker() {
        {
            const std::lock_guard lock{mutex_};
            closing_ = true;
            steps_->stop();
        }
        changed_.notify_one();
        thread_.join();
    }

    void add(Job job) {
        {
            const std::lock_guard lock{mutex_};
            jobs_.push_back(std::move(job));
        }
        changed_.notify_one();
    }

    /// Runs the operation on the thread; its result becomes the future's.
    template <typename Operation>
    auto perform(Operation operation) {
        using Result = decltype(operation(std::declval<Keyring&>()));
        const auto promise = std::make_shared<QPromise<Result>>();
        promise->start();
        add([promise, operation = std::move(operation)](Keyring& keyring) {
            promise->addResult(operation(keyring));
            promise->finish();
        });
        return promise->future();
    }

private:
    /// Once the steps are stopped, the remaining jobs fail at once.
    void run() {
        GlibSteps steps;
        steps_ = &steps;
        started_.set_value();
        std::unique_lock lock{mutex_};
        for (;;) {
            changed_.wait(lock, [this] { return closing_ || !jobs_.empty(); });
            if (jobs_.empty()) return;
            const Job job = std::exchange(jobs_.front(), nullptr);
            jobs_.pop_front();
            lock.unlock();
            {
                Keyring keyring{steps, limit_};
                job(keyring);
            }
            steps.settle();
            lock.lock();
        }
    }

    std::chrono::milliseconds limit_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Job> jobs_;
    bool closing_ = false;
    GlibSteps* steps_ = nullptr;
    std::promise<void> started_;
    std::thread thread_;
};

LibsecretStore::LibsecretStore(QDBusConnection bus, std::chrono::milliseconds limit)
    : service_{std::move(bus)},
      limit_{limit} {}

LibsecretStore::~LibsecretStore() = default;

LibsecretStore::Worker& LibsecretStore::worker() {
    if (!worker_) worker_ = std::make_unique<Worker>(limit_);
    return *worker_;
}

QFuture<bool> LibsecretStore::save(KeychainItem item, std::string value) {
    return worker().perform([item = std::move(item), value = std::move(value)](Keyring& keyring) {
        return keyring.save(item, value);
    });
}

QFuture<SecretReading> LibsecretStore::read(KeychainItem item) {
    return worker().perform(
        [item = std::move(item)](Keyring& keyring) { return keyring.read(item); });
}

QFuture<SecretAnswer> LibsecretStore::find(KeychainItem item) {
    return service_.find(item);
}

QFuture<SecretAnswer> LibsecretStore::remove(KeychainItem item) {
    return worker().perform(
        [item = std::move(item)](Keyring& keyring) { return keyring.remove(item); });
}

void LibsecretStore::watch(std::function<void()> changed) {
    service_.watch(std::move(changed));
}

} // namespace quillon
