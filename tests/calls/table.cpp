// How a call is made from a function's type; the table itself is generated from the list of exports.
#include "calls/table.h"

#include <bit>

namespace calls {

namespace {

// An argument as the words that lie on a 32-bit stack.
template <class T>
void Append(std::vector<std::uint32_t>& words, const T& argument) {
    std::uint32_t parts[(sizeof(T) + 3) / 4] = {};
    std::memcpy(parts, &argument, sizeof argument);
    words.insert(words.end(), std::begin(parts), std::end(parts));
}

// Records and floats are returned in other places than integers.
template <class Result, class... Parameters>
Result Invoke(Call& call, Parameters... arguments) {
    const ControlRegisters controls(call.processor.value_or(Processor()));
#if ZORVIC_WATCHES_CALLS
    if (!call.processor) return reinterpret_cast<Result (*)(Parameters...)>(call.callee.function)(arguments...);
    std::vector<std::uint32_t> words;
    std::conditional_t<std::is_void_v<Result>, int, Result> result{};
    if (std::is_class_v<Result>) Append(words, &result);
    (Append(words, arguments), ...);
    const auto outcome = zorvic::CallWatched(reinterpret_cast<const void*>(call.callee.function), words,
                                             call.processor->stackResidue, std::is_floating_point_v<Result>);
    call.broken = outcome.broken;
    if constexpr (std::is_floating_point_v<Result>)
        result = static_cast<Result>(outcome.real);
    else if constexpr (!std::is_class_v<Result>)
        std::memcpy(&result, &outcome.result, sizeof result);
    if constexpr (!std::is_void_v<Result>) return result;
#else
    return reinterpret_cast<Result (*)(Parameters...)>(call.callee.function)(arguments...);
#endif
}

template <class Result>
std::uint64_t NumberOf(const Result& result) {
    std::uint64_t number = 0;
    if constexpr (std::is_pointer_v<Result>)
        number = result != nullptr;
    else
        std::memcpy(&number, &result, sizeof result);
    return number;
}

template <class Result, class... Parameters>
void Run(Call& call) {
    [[maybe_unused]] auto name = call.callee.parameters.begin();
    // Braces make the arguments from the first to the last.
    const std::tuple<Parameters...> arguments{call.arguments.Make<Parameters>(*name++)...};
    if (call.before) call.before();
    const auto invoke = [&](Parameters... parameters) { return Invoke<Result>(call, parameters...); };
    if constexpr (std::is_void_v<Result>) {
        std::apply(invoke, arguments);
        if (call.after) call.after();
    } else {
        const Result result = std::apply(invoke, arguments);
        if (call.after) call.after();
        call.result = NumberOf(result);
        call.arguments.Take(result);
    }
}

template <class Result, class... Parameters>
Export Of(const char* name, Result (*function)(Parameters...), std::vector<const char*> parameters) {
    return {name,
            reinterpret_cast<void (*)()>(function),
            std::move(parameters),
            {std::is_same_v<Parameters, const RECT*>...},
            std::is_pointer_v<Result>,
            Run<Result, Parameters...>};
}

}  // namespace

std::string Call::Fault(const Pool& pool) const {
    const std::string fault = broken                         ? std::string("changed the processor's state: ") + broken
                              : !arguments.FencesAreIntact() ? "wrote before the host's memory"
                                                             : pool.Check();
    return fault.empty() ? fault : arguments.Text() + ": " + fault;
}

const std::vector<Export>& Exports() {
#define EXPORT(name, function, ...) Of(#name, name, {__VA_ARGS__}),
    static const std::vector<Export> exports = {
#include "every_export.inl"
    };
    return exports;
}

}  // namespace calls
