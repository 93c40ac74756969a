// Every export: its parameters' names, and how it is called with arguments that suit their types.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "calls/arguments.h"
#include "calls/processor.h"

namespace calls {

struct Call;

struct Export {
    const char* name;
    void (*function)();
    std::vector<const char*> parameters;
    std::vector<bool> isRect;
    bool returnsHandle;
    void (*run)(Call& call);
};

// One call, before it happens and after.
struct Call {
    Call(const Export& called, Pool& pool, Random random, const Wishes& wishes = {})
        : callee(called), arguments(pool, called.name, random, wishes) {}
    void Run() { callee.run(*this); }
    // What it did wrong; empty, nothing.
    std::string Fault(const Pool& pool) const;

    const Export& callee;
    Arguments arguments;
    std::optional<Processor> processor = Processor();  // whose state is watched; none where other threads make calls
    std::function<void()> before, after;               // when the arguments are there, and before the result is taken
    std::uint64_t result = 0;                          // its bytes; 1 for any handle
    const char* broken = nullptr;                      // the part of the processor's state that it left changed
};

const std::vector<Export>& Exports();

}  // namespace calls
