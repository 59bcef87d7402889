// Lists of drives, folders and files, read from the machine.
#pragma once

#include "shared/fields.h"

namespace brooklander {

// A list that shows a place of the machine and is read again when its screen is shown.
class PlaceList : public EntryList {
  public:
    // Reads the place again; nothing is selected then, and no handler runs. A folder that has gone
    // or cannot be read shows as an empty one.
    virtual void refresh() = 0;

  protected:
    using EntryList::EntryList;
    ~PlaceList() = default;

    void screen_shown() override { refresh(); }

    Files& files() const { return screen().desk().files(); }
};

// The drives, as `c:`. Its text is the drive chosen; on_click runs at every choice.
class DriveList : public PlaceList {
  public:
    DriveList(Field& container, std::string_view name, Start start = shown)
        : PlaceList(FieldKind::drive_list, container, name, start) {}

    // Keeps the drive; the drive of the current directory stands there before any choice.
    void refresh() override;

  private:
    void entry_selected() override;
};

// A folder of the machine, shown with its ancestors and the folders in it: the drive's root, the
// folders down to its path, and then the folders in the folder, by name. Its text is the path.
class FolderList : public PlaceList {
  public:
    FolderList(Field& container, std::string_view name, Start start = shown)
        : PlaceList(FieldKind::folder_list, container, name, start) {}

    std::function<void()> on_change;  // after the path has changed

    // Goes to a folder (a drive alone means its root), reads it, and runs on_change when the path
    // differs from before. A folder that has gone or cannot be read shows as an empty one.
    void set_path(std::string_view path);
    const std::string& path() const { return text(); }

    // Goes to the selected entry, if that is another folder than the one shown. What a click does
    // where one click opens a folder.
    void open_selected();

    // The path of an entry in full.
    std::string entry_path(std::size_t index) const;

    // An entry can be found by its whole path, too, with either slash.
    std::optional<std::size_t> find(std::string_view text) const override;

    void set_text(std::string_view text) override { set_path(text); }

    // Stands at the current directory before any step has set a path.
    void refresh() override;

  private:
    void read(const std::string& folder);
};

// The files of a folder whose names are of a pattern, by name. Its text is the name selected.
class FileList : public PlaceList {
  public:
    FileList(Field& container, std::string_view name, std::string_view pattern, Start start = shown)
        : PlaceList(FieldKind::file_list, container, name, start), pattern_(pattern) {}

    // Goes to a folder and reads it. One that is not there or cannot be read shows as an empty one:
    // what is amiss with it is told when a file in it is opened.
    void set_path(std::string_view path);

    // The folder's path, without a slash at its end but for a root.
    const std::string& path() const { return path_; }

    void deselect() override;

    // Stands at the current directory before any step has set a path.
    void refresh() override;

  private:
    void entry_selected() override;

    std::string pattern_;
    std::string path_;
};

}  // namespace brooklander
