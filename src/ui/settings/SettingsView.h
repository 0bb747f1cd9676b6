#pragma once

#include "ui/accessibility/View.h"
#include "ui/controls/Refresher.h"
#include "ui/settings/SettingsActions.h"

#include <vector>

class QScrollArea;

namespace quillon {

class PanelOffer;
class SetupView;
class Store;
class TabStrip;
class Updater;

/// The content of the settings window: the setup guide, the topics and the general settings, each
/// behind a tab. As wide as it is made for; tells how high it would like to be.
class SettingsView : public View {
    Q_OBJECT

public:
    /// The tag of the tab that is selected at first: "setup", "topics" or "general".
    SettingsView(Store& store, Updater& updater, SettingsActions actions, const QString& tab,
                 QWidget* parent = nullptr);

    [[nodiscard]] QString tab() const;
    /// A tag that no tab has changes nothing.
    void setTab(const QString& tag);

    /// Whether to offer a way to the panel: there is no icon that opens it.
    void setPanelOffered(bool offered);

    /// Its own, whatever the window's: 540 points, more where the text is larger than usual.
    [[nodiscard]] static int fittingWidth();
    /// The height that the selected tab needs, in device-independent pixels. In a window of less
    /// height the tab scrolls.
    [[nodiscard]] int fittingHeight() const;

    [[nodiscard]] QSize sizeHint() const override { return {fittingWidth(), fittingHeight()}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {fittingWidth(), 0}; }

Q_SIGNALS:
    /// fittingHeight() is now this.
    void fittingHeightChanged(int height);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void themeChanged() override;

private:
    void build();
    void addPage(QWidget* page);
    /// Goes to the tab that many further along, around the ends.
    void stepTab(int by);
    void showPage(int index);
    void measure();

    SetupView* setup_;
    TabStrip* tabs_;
    QWidget* pages_;
    std::vector<QWidget*> pageList_;
    QScrollArea* scroll_ = nullptr;
    PanelOffer* offer_;
    int reported_ = 0;
    Refresher measuring_;
};

} // namespace quillon
