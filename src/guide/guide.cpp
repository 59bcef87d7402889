#include "guide/guide.h"

#include <fstream>
#include <iostream>

#include "guide/guide_text.h"
#include "guide/page.h"
#include "platform/files/host_system.h"
#include "scenario/options.h"
#include "scenario/scenario_error.h"
#include "scenario/stage.h"
#include "scenario/terminal.h"

namespace brooklander::guide {
namespace {

namespace fs = std::filesystem;
using scenario::Stage;
using scenario::Step;
using scenario::Unmet;
using scenario::WrongLine;

constexpr int is_written = 0;
constexpr int something_failed = 1;
constexpr int not_a_guide = 2;

// A part with the steps of its commands, none for prose.
struct ReadPart {
    Part part;
    std::vector<Step> steps;
};

// All parts of a chapter. The lines above a part's commands are left empty, so that the steps have
// the places that they have in the file.
std::vector<ReadPart> read_chapter(const fs::path& file) {
    std::vector<ReadPart> chapter;
    for (Part& part : parts_of(file)) {
        std::vector<Step> steps;
        if (!part.is_prose) {
            std::string text(static_cast<std::size_t>(part.first_line - 1), '\n');
            for (const std::string& line : part.lines) text.append(line).push_back('\n');
            steps = scenario::read_script_text(text, file, {});
        }
        chapter.push_back({std::move(part), std::move(steps)});
    }
    return chapter;
}

// Does something that a line of a file asks for, and tells the place where it fails.
template <typename Act>
void at_line(const fs::path& file, int line, const Act& act) {
    const std::string place = host_system::utf8_of(file) + ":" + std::to_string(line) + ": ";
    try {
        act();
    } catch (const Unmet& unmet) {
        throw Unmet(place + unmet.what());
    } catch (const WrongLine& wrong) {
        throw WrongLine(place + wrong.what());
    }
}

void tell(const fs::path& file, const Part& part, Page& page) {
    int line = part.first_line;
    for (const std::string& prose : part.lines) {
        at_line(file, line, [&] { page.add_line(prose); });
        ++line;
    }
    at_line(file, line - 1, [&] { page.end_part(); });
}

void note_pictures(const fs::path& file, const Part& part, Page& page) {
    int line = part.first_line;
    for (const std::string& command : part.lines) {
        const auto words = scenario::words_of(command, {});
        if (words.size() == 2 && words.front() == "shot") {
            at_line(file, line, [&] { page.picture_taken(words.back()); });
        }
        ++line;
    }
}

void play_chapter(const fs::path& file, Stage& stage, Page& page) {
    int last_line = 1;
    for (const ReadPart& read : read_chapter(file)) {
        last_line = read.part.first_line + static_cast<int>(read.part.lines.size()) - 1;
        if (read.part.is_prose) {
            tell(file, read.part, page);
        } else {
            stage.play(read.steps);
            note_pictures(file, read.part, page);
        }
    }
    at_line(file, last_line, [&] { page.end_chapter(); });
}

// Without a folder named, the chapters would be played in the user's home.
scenario::Options options_of(std::vector<std::string> words) {
    scenario::Options options = scenario::options_of(std::move(words));
    const bool is_whole = !options.help && !options.home.empty() && options.files.size() > 1;
    if (!is_whole || !options.variables.empty() || !options.secrets.empty()) {
        throw WrongLine(
            "brooklander-guide [--drawn] [--shots FOLDER] --home FOLDER PAGE CHAPTER...");
    }
    return options;
}

fs::path fresh_home(const fs::path& homes, const fs::path& chapter) {
    fs::path home = homes / chapter.stem();
    fs::remove_all(home);
    fs::create_directories(home);
    return home;
}

void write_page(const fs::path& file, const std::string& html) {
    std::ofstream page(file, std::ios::binary);
    page << html;
    page.close();
    if (!page) throw Unmet("\"" + host_system::utf8_of(file) + "\" cannot be written.");
}

void make_page(const scenario::Options& options, const scenario::FrontMaker& make_front) {
    std::unique_ptr<Stage> stage;
    Page page({.value_of = [&stage](auto written) { return value_of(written, *stage); },
               .fields_of =
                   [&stage](auto path, auto activity_id, auto name) {
                       return load_file_fields(*stage, path, activity_id, name);
                   }},
              !options.shots.empty());
    for (std::size_t i = 1; i < options.files.size(); ++i) {
        const fs::path& chapter = options.files[i];
        stage = std::make_unique<Stage>(
            fresh_home(options.home, chapter), make_front,
            [](const std::string& line) { std::cout << line << std::endl; },
            [](const std::string& sentence) { std::cerr << sentence << std::endl; });
        play_chapter(chapter, *stage, page);
    }
    write_page(options.files.front(), page.html());
}

}  // namespace

int run_guide(int argc, char** argv, const scenario::DrawnFrontMaker& drawn_front_maker) {
    const scenario::Terminal terminal;
    try {
        const scenario::Options options = options_of(scenario::command_line(argc, argv));
        make_page(options,
                  options.drawn ? drawn_front_maker(options.shots) : scenario::undrawn_front);
        return is_written;
    } catch (const WrongLine& wrong) {
        std::cerr << wrong.what() << std::endl;
        return not_a_guide;
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << std::endl;
        return something_failed;
    }
}

}  // namespace brooklander::guide
