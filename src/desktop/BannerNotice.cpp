#include "desktop/BannerNotice.h"

#include <QAccessibleWidget>

namespace quillon {
namespace {

class Description : public QAccessibleWidget {
public:
    explicit Description(BannerNotice& notice)
        : QAccessibleWidget{&notice, QAccessible::Notification},
          notice_{notice} {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.invisible = !notice_.announced();
        return state;
    }

private:
    BannerNotice& notice_;
};

QAccessibleInterface* describe(const QString& className, QObject* object) {
    if (className != QLatin1String{BannerNotice::staticMetaObject.className()}) return nullptr;
    return new Description{*static_cast<BannerNotice*>(object)};
}

} // namespace

BannerNotice::BannerNotice() {
    QAccessible::installFactory(describe); // Qt installs the same factory only once
    create(); // only what has a window is among the application's children
}

void BannerNotice::announce(const QString& text) {
    setAccessibleName(text);
    announced_ = true;
    tell(QAccessible::ObjectShow);
}

void BannerNotice::end() {
    announced_ = false;
    tell(QAccessible::ObjectHide);
}

void BannerNotice::tell(QAccessible::Event event) {
    QAccessibleEvent news{this, event};
    QAccessible::updateAccessibility(&news);
}

} // namespace quillon
