// The style sheet builder's preview with the real engine.
#include "app/run/WebPlugin.h"

#include "editor/views/WebControls.h"
#include "platform/store/Settings.h"
#include "styles/sheet/frmCSS.h"
#include "support/TestFrame.h"
#include "web/PageProbe.h"

#include <gtest/gtest.h>
#include <QPointer>
#include <QTest>
#include <QWindow>

namespace {

/// Looks whether the system's window of a form is still the same behind each activation.
class Activations final : public QObject {
  public:
    int seen = 0, lost = 0;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::WindowActivate)
            return false;
        const QPointer<QWindow> window(static_cast<QWidget*>(watched)->windowHandle());
        watched->event(event);
        ++seen;
        lost += window ? 0 : 1;
        return true;
    }
};

TEST(StylePreview, TheFirstPageLeavesTheWindowThatIsBeingActivated) {
    TestFrame frame;
    frame.Store().WriteFlag(Keys::UseMSIE, true);
    frame.State<WebControls>().Load = [] { return LoadWebPlugin({QStringLiteral(TARNWICK_PLUGIN_FOLDER)}); };
    auto& form = frame.LoadedForms().Load<frmCSS>(frame);
    Activations activations;
    form.installEventFilter(&activations);
    form.show();
    form.activateWindow();
    const auto* browser = form.findChild<QWidget*>(QStringLiteral("WebBrowser1"));
    ASSERT_TRUE(browser);
    EXPECT_TRUE(Probe::Until(*browser, QStringLiteral("document.body.innerText === 'Style H1'")));
    EXPECT_GT(activations.seen, 0);
    EXPECT_EQ(activations.lost, 0);
}

} // namespace
