#pragma once

#include <sys/mount.h>

#include <filesystem>
#include <string>

namespace quillon::test {

/// A disk of its own over a folder, which only root can have.
class SmallDisk {
public:
    static constexpr std::size_t size = 1 << 20; // bytes

    explicit SmallDisk(std::filesystem::path folder, unsigned long flags = 0)
        : folder_{std::move(folder)} {
        const std::string options = "size=" + std::to_string(size);
        mounted_ = ::mount("none", folder_.c_str(), "tmpfs", 0, options.c_str()) == 0;
        if (flags != 0) remount(flags);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    ~SmallDisk() {
        if (mounted_) ::umount2(folder_.c_str(), MNT_DETACH);
    }

    [[nodiscard]] bool isMounted() const { return mounted_; }
    void remount(unsigned long flags) {
        ::mount("none", folder_.c_str(), "tmpfs", MS_REMOUNT | flags, nullptr);
    }

private:
    std::filesystem::path folder_;
    bool mounted_ = false;
};

} // namespace quillon::test
