#include "calls/edges.h"

#include <iostream>

#include "calls/stopwatch.h"
#include "calls/table.h"
#include "support/allocations.h"

namespace calls {

namespace {

std::string FaultOfParameter(const Export& callee, int parameter, bool trace) {
    static Fences fences;
    Pool pool;
    Stopwatch time(1);
    for (int number = 0; number < edgeRects; ++number) {
        Random random(number);
        Call call{callee, Arguments(pool, fences, callee.name, random, {Absurd::nothing, parameter, number})};
        if (trace) call.announce = [](const std::string& text) { std::cout << text << '\n'; };
        time.Restart();
        callee.run(call);
        std::string fault;
        if (call.broken) fault = call.broken;
        if (!call.arguments.FencesAreIntact()) fault = "wrote before the host's memory";
        if (time.SaysTooLong()) fault = "took more than a second";
        if (number % edges == 0) {
            if (fault.empty()) fault = pool.Check();
            pool.ChangeOperations(random);
        }
        if (!fault.empty()) return call.arguments.Text() + ": " + fault;
    }
    return {};
}

}  // namespace

std::string FaultOfEdges(int place, bool trace) {
    static const Allocations fenced(true);
    const Export& callee = Exports()[static_cast<std::size_t>(place)];
    for (int parameter = 0; parameter < static_cast<int>(callee.isRect.size()); ++parameter) {
        if (!callee.isRect[static_cast<std::size_t>(parameter)]) continue;
        const std::string fault = FaultOfParameter(callee, parameter, trace);
        if (!fault.empty()) return fault;
    }
    return {};
}

}  // namespace calls
