// What stands between a field and the widget that draws it.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>

#include "platform/desktop/texts.h"
#include "shared/fields.h"

namespace brooklander::desktop {

class FieldView {
  public:
    FieldView() = default;
    FieldView(const FieldView&) = delete;
    FieldView& operator=(const FieldView&) = delete;
    virtual ~FieldView() = default;

    virtual Field& field() const = 0;

    // The widget that is the field for the user; null for menus and for the headings of grids,
    // which are none.
    virtual QWidget* widget() const = 0;

    // Makes the widget show what the field holds now.
    virtual void follow() = 0;

    // What the widget shows otherwise than its field, as the end of a sentence about the field
    // ("is hidden on the screen"); empty when there is no difference.
    virtual QString difference() const = 0;

    // Its field has changed since it last followed; the windows keep this.
    bool waits = false;
};

// Where widgets bring what a user has done to them.
class Acts {
  public:
    Acts() = default;
    Acts(const Acts&) = delete;
    Acts& operator=(const Acts&) = delete;
    virtual ~Acts() = default;

    // Runs the step that a user's act stands for. Nothing leaves it: a failure ends the program.
    // Afterwards all widgets show their fields, that of `origin` in any case, since the widget has
    // changed itself by the act already.
    virtual void act(FieldView& origin, const std::function<void()>& step) = 0;
};

// A view of a widget, with what all kinds share: the own flags, and the name.
template <typename FieldType, typename Widget>
class WidgetView : public FieldView {
  public:
    WidgetView(FieldType& field, Widget* widget) : field_(field), widget_(widget) {
        widget->setObjectName(shown(field.name()));
    }

    Field& field() const override { return field_; }
    Widget* widget() const override { return widget_; }

    void follow() override {
        if (widget_->isHidden() == field_.visible()) widget_->setVisible(field_.visible());
        if (own_enabled() != field_.enabled()) widget_->setEnabled(field_.enabled());
        follow_content();
    }

    QString difference() const override {
        if (widget_->isHidden() == field_.visible()) {
            return QStringLiteral("is %1 on the screen")
                .arg(widget_->isHidden() ? QLatin1String("hidden") : QLatin1String("shown"));
        }
        if (own_enabled() != field_.enabled()) {
            return QStringLiteral("is %1 on the screen")
                .arg(own_enabled() ? QLatin1String("enabled") : QLatin1String("disabled"));
        }
        return content_difference();
    }

  protected:
    virtual void follow_content() = 0;

    // What the widget says, whole and without what only helps to work it.
    virtual QString says() const = 0;

    virtual QString content_difference() const {
        if (says() == shown(field_.text())) return {};
        return QStringLiteral("says \"%1\" on the screen instead of \"%2\"")
            .arg(says(), shown(field_.text()));
    }

    FieldType& field_;

  private:
    bool own_enabled() const { return widget_->isEnabledTo(widget_->parentWidget()); }

    Widget* widget_;
};

}  // namespace brooklander::desktop
