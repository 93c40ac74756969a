// A resource manager that writes down what it hears.
#pragma once

#include <functional>
#include <string>

#include "support/host.h"

namespace host {

class Recorder final : public ResourceManager {
public:
    Recorder() { EXPECT_EQ(RegisterD2DResoureMgr(this), this); }
    ~Recorder() { EXPECT_EQ(RegisterD2DResoureMgr(nullptr), nullptr); }
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    void OnRelease(HGBITMAP bitmap) override {
        log += "release;";
        last = bitmap;
        if (whileReleasing) whileReleasing();
    }
    void OnChange(HGBITMAP bitmap, DWORD value) override {
        log += "change " + std::to_string(value) + ";";
        last = bitmap;
        if (whileChanging) whileChanging();
    }

    std::string log;
    HGBITMAP last = nullptr;
    std::function<void()> whileReleasing, whileChanging;
};

}  // namespace host
