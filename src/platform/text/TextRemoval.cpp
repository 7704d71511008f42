#include "platform/text/TextRemoval.h"

#include <algorithm>

namespace {

/// Hands out the styles of a text from left to right.
class StyleWalk {
  public:
    explicit StyleWalk(const StyleRuns& styles) : styles_(styles) {}

    void Skip(int bytes) { Pass(bytes, nullptr); }
    void Copy(int bytes, StyleRuns& to) { Pass(bytes, &to); }

  private:
    void Pass(int bytes, StyleRuns* to) {
        while (bytes > 0 && run_ < styles_.Count()) {
            const int step = std::min(bytes, styles_.LengthOf(run_) - passed_);
            if (to)
                to->Append(step, styles_.StyleOf(run_));
            bytes -= step;
            passed_ += step;
            if (passed_ == styles_.LengthOf(run_)) {
                ++run_;
                passed_ = 0;
            }
        }
    }

    const StyleRuns& styles_;
    std::size_t run_ = 0;
    int passed_ = 0; ///< of the run that comes next
};

} // namespace

StyledText Without(const StyledText& whole, std::span<const ByteRange> gone) {
    StyledText rest;
    rest.text.reserve(whole.text.size());
    StyleWalk styles(whole.styles);
    int from = 0;
    const auto keep = [&](int end) {
        rest.text += QByteArrayView(whole.text).sliced(from, end - from);
        styles.Copy(end - from, rest.styles);
    };
    for (const ByteRange& stretch : gone) {
        keep(stretch.start);
        styles.Skip(stretch.Length());
        from = stretch.end;
    }
    keep(static_cast<int>(whole.text.size()));
    return rest;
}
