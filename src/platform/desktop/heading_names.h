// The names that stand in the headings of a grid's columns, or of its rows.
#pragma once

#include <QString>
#include <map>

namespace brooklander::desktop {

class HeadingNames {
  public:
    // Gives a column or row, from 0, its name; an empty one takes it away. Says whether that
    // changes anything.
    bool set(int place, const QString& name);

    // Empty where there is no name.
    QString at(int place) const;

    // Whether there is any name.
    bool empty() const { return names_.empty(); }

    // By place.
    const std::map<int, QString>& all() const { return names_; }

  private:
    std::map<int, QString> names_;  // none of them empty
};

}  // namespace brooklander::desktop
