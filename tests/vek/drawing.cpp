// The words of the calls that tests write as text.
#include "drawing.h"

#include <algorithm>
#include <cctype>
#include <sstream>

namespace vek_test {

namespace {

using Numbers = std::span<const float>;

// A function whose arguments a pen has.
template <class Result, class... Args>
NumberCall Of(const char* name, Result (*function)(Args...)) {
    constexpr auto floats = static_cast<std::size_t>((0 + ... + int{std::is_same_v<Args, float>}));
    constexpr auto ints = static_cast<std::size_t>((0 + ... + int{std::is_same_v<Args, int>}));
    constexpr bool hasRect = (std::is_same_v<Args, const RECT*> || ...);
    return {name, floats + ints + (hasRect ? 4 : 0), hasRect ? 0 : floats, [function](Pen& pen, Numbers numbers) {
                const float* next = numbers.data();
                const std::tuple<Args...> arguments{pen.Argument<Args>(next)...};
                if constexpr (std::is_same_v<Result, int>)
                    return std::apply(function, arguments);
                else if (Owned<VekGradient> made{std::apply(function, arguments)}) {
                    pen.gradient = std::move(made);
                    return vekCanvasSetGradient(pen, pen);
                }
                return 0;
            }};
}

}  // namespace

const std::vector<NumberCall>& NumberCalls() {
    static constexpr RECT rounded{10, 10, 110, 70};
    static const std::vector<NumberCall> calls{
        Of("point", vekCanvasDrawPoint),
        Of("line", vekCanvasDrawLine),
        Of("rectangle", vekCanvasDrawRectangle),
        {"round", 2, 2, [](Pen& pen, Numbers n) { return vekCanvasDrawRoundRect(pen, &rounded, n[0], n[1]); }},
        Of("circle", vekCanvasDrawCircle),
        Of("ellipse", vekCanvasDrawEllipse),
        Of("path", vekCanvasDrawPath),
        Of("fill", vekCanvasDrawColor),
        Of("bitmap", vekCanvasDrawBitmap),
        Of("save", vekCanvasSave),
        Of("layer", vekCanvasSaveLayer),
        Of("restore", vekCanvasRestore),
        Of("clip", vekCanvasClipRect),
        Of("translate", vekCanvasTranslate),
        Of("style", vekCanvasSetDrawStyle),
        Of("smooth", vekCanvasSetSmooth),
        Of("mode", vekCanvasSetBlendMode),
        Of("value", vekCanvasSetBlendValue),
        Of("cap", vekCanvasSetStrokeCap),
        Of("join", vekCanvasSetStrokeJoin),
        Of("width", vekCanvasSetStrokeWidth),
        Of("dash", vekCanvasSetDashStyle),
        {"dashes", 2, 2,
         [](Pen& pen, Numbers n) { return vekCanvasSetDashPattern(pen, n.data(), static_cast<int>(n.size())); }},
        {"solid", 0, 0, [](Pen& pen, Numbers) { return vekCanvasSetDashPattern(pen, nullptr, 0); }},
        Of("B", vekPathBegin),
        Of("Z", vekPathClose),
        Of("M", vekPathMoveTo),
        Of("L", vekPathLineTo),
        Of("C", vekPathBezierCurveTo),
        Of("Q", vekPathQuadraticCurveTo),
        Of("T", vekPathArcTo),
        Of("A", vekPathAddArc),
        Of("R", vekPathAddRectangle),
        Of("O", vekPathAddCircle),
        Of("E", vekPathAddEllipse),
        Of("linear", vekGradientCreateLinear),
        Of("radial", vekGradientCreateRadial),
        Of("stop", vekGradientAddColorStop),
    };
    return calls;
}

int Draw(Pen& pen, const std::string& text) {
    std::istringstream words(text);
    int done = 1;
    for (std::string word; words >> word;) {
        std::vector<float> numbers;
        while (words >> std::ws && (std::isdigit(words.peek()) || words.peek() == '-')) words >> numbers.emplace_back();
        if (word[0] == '#') {
            pen.color = std::stoul(word.substr(1), nullptr, 16);
            done &= vekCanvasSetColor(pen, pen.color);
            continue;
        }
        const auto call = std::ranges::find(NumberCalls(), word, &NumberCall::name);
        if (call == NumberCalls().end() || numbers.size() < call->count) {
            ADD_FAILURE() << "no call: " << word << " in " << text;
            return 0;
        }
        done &= call->call(pen, numbers);
    }
    return done;
}

testing::AssertionResult AreTheSame(const std::string& one, const std::string& other) {
    Drawing first, second;
    Draw(first, one);
    Draw(second, other);
    const auto [a, b] = std::ranges::mismatch(first.words, second.words);
    if (a == first.words.end()) return testing::AssertionSuccess();
    return testing::AssertionFailure() << one << " differs from " << other << " at " << a - first.words.begin();
}

}  // namespace vek_test
