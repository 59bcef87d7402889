#include "shared/workspace.h"

#include <array>

#include "shared/text_reading.h"

namespace brooklander {
namespace {

// The first stands for a folder name that is never filled in; making it fails and does no harm.
constexpr std::array<std::string_view, 9> start_up_folders{"",
                                                           "organization",
                                                           "gear",
                                                           "voxoutfiles",
                                                           "batchoutfiles",
                                                           "logoutfiles",
                                                           "preferences",
                                                           "person",
                                                           "voxconfiguration"};

template <typename Reader>
std::vector<std::string> all_items(std::string_view text) {
    std::vector<std::string> items;
    for (Reader reader(text); !reader.at_end();) items.emplace_back(reader.next());
    return items;
}

}  // namespace

void enter_workspace(Files& files) {
    files.change_directory(workspace::root);
    for (const std::string_view folder : start_up_folders) files.make_folder(folder);
}

void read_reference_list(const Files& files, std::string_view path, ReferenceItems items,
                         EntryList& list) {
    const FileText text = files.read(path);
    list.set_entries(items == ReferenceItems::lines ? all_items<LineReader>(text.view())
                                                    : all_items<CommaItemReader>(text.view()));
}

void read_reference_lists(const Files& files, const ReferenceLists& lists) {
    read_reference_list(files, "c:\\brooklander\\samplefraction.txt", ReferenceItems::comma_items,
                        lists.fractions);
    read_reference_list(files, "c:\\brooklander\\statistictype.txt", ReferenceItems::lines,
                        lists.statistic_types);
    read_reference_list(files, "c:\\brooklander\\duration.txt", ReferenceItems::lines,
                        lists.durations);
    read_reference_list(files, "c:\\brooklander\\temperature.txt", ReferenceItems::lines,
                        lists.temperatures);
}

}  // namespace brooklander
