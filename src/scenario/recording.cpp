#include "scenario/recording.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/code_page.h"
#include "scenario/user_words.h"

namespace brooklander::scenario {
namespace {

std::string numbered(std::string_view name, std::size_t number) {
    return std::string(name) + (number == 1 ? "" : std::to_string(number));
}

std::string variable(const std::string& name) { return "${" + name + "}"; }

// A text inside a quoted word.
std::string escaped(std::string_view text) {
    std::string quoted = in_quotes(text);
    std::string inside;
    for (const char byte : quoted.substr(1, quoted.size() - 2)) {
        if (byte == '$') inside += '\\';
        inside += byte;
    }
    return inside;
}

bool needs_no_quotes(std::string_view text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char byte) {
        return byte > ' ' && byte < '\x7F' && byte != '"' && byte != '$';
    });
}

// A text as one word of a shell's command line.
std::string shell_word(const std::string& text) {
    const bool is_plain = std::all_of(text.begin(), text.end(), [](char byte) {
        return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
               (byte >= '0' && byte <= '9') || byte == '.' || byte == '_' || byte == '-';
    });
    if (is_plain) return text;
    std::string quoted = "'";
    for (const char byte : text)
        quoted += byte == '\'' ? std::string("'\\''") : std::string(1, byte);
    return quoted + "'";
}

bool fits_a_remark(std::string_view text) {
    return std::none_of(text.begin(), text.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) < ' ') || byte == '\x7F';
    });
}

}  // namespace

Recording::Recording(const Screens& screens, std::vector<RecordedLine> lines,
                     const Credentials& credentials)
    : screens_(screens), lines_(std::move(lines)) {
    // A password that is a user id, too, goes as the password.
    const auto name_all = [this](const std::vector<std::string>& values, const char* name) {
        for (std::size_t back = 1; back <= values.size(); ++back) {
            secrets_.push_back({values[values.size() - back], numbered(name, back)});
        }
    };
    name_all(credentials.passwords, password_variable);
    name_all(credentials.user_ids, user_variable);
    std::stable_sort(secrets_.begin(), secrets_.end(), [](const Named& one, const Named& other) {
        return one.value.size() > other.value.size();
    });
    for (const RecordedLine& line : lines_) {
        if (line.field != &screens_.frmStart.lstImportFileBox) continue;
        const auto* const entry = std::get_if<SelectedEntry>(&line.what);
        if (entry == nullptr || entry->text.empty()) continue;
        const bool is_known = std::any_of(files_.begin(), files_.end(), [&](const Named& file) {
            return file.value == entry->text;
        });
        if (!is_known) files_.push_back({entry->text, numbered("file", files_.size() + 1)});
    }
}

std::string Recording::text(std::string_view own_name) const {
    std::string body = "start\n";
    Used used;
    for (const RecordedLine& line : lines_) body += written(line, used) + "\n";
    return head(own_name, used) + body;
}

std::string Recording::head(std::string_view own_name, const Used& used) const {
    std::string command = "#     brooklander-scenario";
    std::string meanings;
    const auto tell = [&](const std::string& name, const char* meaning) {
        meanings += "# " + variable(name) + ": " + meaning + "\n";
    };
    // In the order in which they are typed; those that did not serve come last.
    std::vector<std::string> secret_names{user_variable, password_variable};
    for (const std::string& name : used) {
        const bool is_newest = name == user_variable || name == password_variable;
        if (!is_newest && !name.starts_with("file")) secret_names.push_back(name);
    }
    for (const std::string& name : secret_names) {
        if (!used.contains(name)) continue;
        command += " --secret " + name;
        tell(name, name.starts_with(user_variable) ? "a user id, which the player asks for"
                                                   : "a password, which the player asks for");
    }
    for (const Named& file : files_) {
        const bool can_be_told = fits_a_remark(file.value) && !holds_secret(file.value);
        command += " --with " + file.variable + "=" +
                   (can_be_told ? shell_word(to_utf8(file.value)) : std::string("NAME"));
        tell(file.variable, "a file to work on, where it lay when this was recorded");
    }
    const auto own = from_utf8(own_name);
    const bool can_be_told = own && fits_a_remark(*own) && !holds_secret(*own);
    command += " " + (can_be_told ? shell_word(std::string(own_name)) : std::string("FILE.scn"));
    return "# What was done in Brooklander, to be done again by\n#\n" + command + "\n#\n" +
           meanings + "\n";
}

std::string Recording::written(const RecordedLine& line, Used& used) const {
    std::string beginning = (line.forced ? "force " : "") + line.verb + " " + line.field->path();
    if (const auto* const typed = std::get_if<TypedText>(&line.what)) {
        return beginning + " " + word(typed->text, may_name_files(*line.field), used);
    }
    if (const auto* const entry = std::get_if<SelectedEntry>(&line.what)) {
        return beginning + " " + word(entry->text, may_name_files(*line.field), used) +
               (entry->which == 1 ? "" : " " + std::to_string(entry->which));
    }
    if (const auto* const pressed = std::get_if<PressedKeys>(&line.what)) {
        const std::string word_of_keys = keys(*pressed, used);
        if (word_of_keys.empty()) {
            return "# Keys that went to " + line.field->path() +
                   " are left out: they hold what no file may.";
        }
        return beginning + " " + word_of_keys;
    }
    if (const auto* const credential = std::get_if<Credential>(&line.what)) {
        used.insert(credential->variable);
        return beginning + " \"" + variable(credential->variable) + "\"";
    }
    if (const auto* const cell = std::get_if<GridCell>(&line.what)) {
        return beginning + " " + std::to_string(cell->row) + " " + std::to_string(cell->column);
    }
    return beginning;
}

std::string Recording::word(std::string_view text, bool may_name_files, Used& used) const {
    std::string word;
    std::string plain;
    bool has_variable = false;
    while (!text.empty()) {
        const Named* named = may_name_files ? file_at(text) : nullptr;
        if (named == nullptr) named = secret_at(text);
        if (named == nullptr) {
            plain += text.front();
            text.remove_prefix(1);
            continue;
        }
        word += escaped(std::exchange(plain, {})) + variable(named->variable);
        text.remove_prefix(named->value.size());
        used.insert(named->variable);
        has_variable = true;
    }
    if (!has_variable && needs_no_quotes(plain)) return plain;
    return "\"" + word + escaped(plain) + "\"";
}

// Empty where a secret stands among the keys whose text would not be read as the keys that type it.
std::string Recording::keys(const PressedKeys& keys, Used& used) const {
    std::string typed;  // a zero, which no secret holds, stands for a key without a character
    for (const Key& key : keys) typed += key.name == Key::Name::character ? key.character : '\0';
    std::string word;
    for (auto key = keys.begin(); key != keys.end();) {
        const auto place = static_cast<std::size_t>(key - keys.begin());
        if (const Named* const secret = secret_at(std::string_view(typed).substr(place))) {
            if (secret->value.find('{') != std::string::npos) return {};
            word += variable(secret->variable);
            used.insert(secret->variable);
            key += static_cast<std::ptrdiff_t>(secret->value.size());
            continue;
        }
        const auto next =
            std::find_if(key, keys.end(), [&](const Key& other) { return other != *key; });
        const bool repeats = key->name != Key::Name::character && next - key > 1;
        const auto times = static_cast<std::size_t>(repeats ? next - key : 1);
        word += escaped(key_word(*key, times));
        key += static_cast<std::ptrdiff_t>(times);
    }
    return "\"" + word + "\"";
}

const Recording::Named* Recording::secret_at(std::string_view rest) const {
    const auto found = std::find_if(secrets_.begin(), secrets_.end(), [rest](const Named& secret) {
        return rest.starts_with(secret.value);
    });
    return found == secrets_.end() ? nullptr : &*found;
}

const Recording::Named* Recording::file_at(std::string_view rest) const {
    const Named* longest = nullptr;
    for (const Named& file : files_) {
        if (!rest.starts_with(file.value)) continue;
        if (longest == nullptr || file.value.size() > longest->value.size()) longest = &file;
    }
    return longest;
}

bool Recording::holds_secret(std::string_view text) const {
    return std::any_of(secrets_.begin(), secrets_.end(), [text](const Named& secret) {
        return text.find(secret.value) != std::string_view::npos;
    });
}

bool Recording::may_name_files(const Field& field) const {
    const FrmImportFileDisplay& display = screens_.frmImportFileDisplay;
    return &field == &screens_.frmStart.lstImportFileBox ||
           &field == &screens_.frmCharSource.lstImportFileBox ||
           &field == &display.fileConvertedFiles || &field == &display.txtSave;
}

std::string Recording::suggested_name() const {
    if (files_.empty()) return "work.scn";
    const std::string& name = files_.front().value;
    return to_utf8(name.substr(0, name.find('.', 1))) + ".scn";
}

Variables Recording::values() const {
    Variables values;
    for (const Named& secret : secrets_) values.emplace(secret.variable, secret.value);
    for (const Named& file : files_) values.emplace(file.variable, file.value);
    return values;
}

}  // namespace brooklander::scenario
