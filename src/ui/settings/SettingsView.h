#pragma once

#include "ui/accessibility/View.h"
#include "ui/controls/Refresher.h"
#include "ui/settings/SettingsActions.h"

#include <vector>

namespace quillon {

class SetupView;
class Store;
class TabStrip;
class TroubleStrip;
class Updater;

/// The content of the settings window: three tabs with the setup guide, the topics and the general
/// settings. Its width is fixed, and it tells the height that it needs.
class SettingsView : public View {
    Q_OBJECT

public:
    /// `tab` is the tag of the first tab to show: "setup", "topics" or "general".
    SettingsView(Store& store, Updater& updater, SettingsActions actions, const QString& tab);

    [[nodiscard]] QString tab() const;
    /// Ignores a tag that no tab has.
    void setTab(const QString& tag);

    /// Whether to offer a button that opens the panel, because there is no icon to do so.
    void setPanelOffered(bool offered);

    /// Its width in device-independent pixels: 540 points of the design.
    [[nodiscard]] static int fittingWidth();
    /// The height that the selected tab needs, in device-independent pixels. In a lower window the
    /// tab scrolls.
    [[nodiscard]] int fittingHeight() const;

    [[nodiscard]] QSize sizeHint() const override { return {fittingWidth(), fittingHeight()}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {fittingWidth(), 0}; }

Q_SIGNALS:
    /// fittingHeight() has changed to this.
    void fittingHeightChanged(int height);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool event(QEvent* event) override;
    void themeChanged() override;

private:
    void build();
    /// The strip at the bottom with a button that opens the panel, for desktops without a place for
    /// the icon that usually opens it.
    [[nodiscard]] QWidget* buildOffer(std::function<void()> openPanel);
    void addPage(QWidget* page);
    /// Goes `by` tabs further, from the last to the first and back.
    void stepTab(int by);
    void showPage(int index);
    void measure();

    SetupView* setup_;
    TabStrip* tabs_;
    QWidget* pages_;
    std::vector<QWidget*> pageList_;
    TroubleStrip* troubles_;
    QWidget* offer_;
    int reported_ = 0;
    Refresher measuring_;
};

} // namespace quillon
