// Every export: its parameters' names, and how it is called with arguments that suit their types.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "calls/arguments.h"
#include "calls/processor.h"

namespace calls {

struct Export;

// One call, before it happens and after.
struct Call {
    const Export& callee;
    Arguments arguments;
    Processor processor{};
    std::function<void(const std::string&)> announce{};  // gets the call as text before it happens; may be empty
    std::uint64_t checksum = 0;                          // of the numbers that it returned
    const char* broken = nullptr;                        // the part of the processor's state that it left changed
};

struct Export {
    const char* name;
    void (*function)();
    std::vector<const char*> parameters;
    std::vector<bool> isRect;
    void (*run)(Call& call);
};

const std::vector<Export>& Exports();

}  // namespace calls
