// The layout of a line of the characteristic defaults file.
//
// The file is a printed report that programs read: the writer's tab stops and the readers' cuts are
// not the same numbers, and both are part of the format. They stand side by side here, each
// difference with its reason.
#pragma once

#include <array>
#include <string_view>

#include "shared/text_reading.h"

namespace brooklander {

// One field of a line, in the order of the line.
struct DefaultsField {
    std::string_view heading;
    std::size_t stop;    // the position at which the writer begins it
    Cut for_display;     // what the screens that show and edit it keep
    Cut for_conversion;  // what reaches the load file
};

// Most cuts end one byte before the next stop, where a value of full width would touch its
// neighbour. The others:
// - Name takes its full width: nothing stands before it.
// - Procedure Source keeps its full width in a conversion alone; the screens keep three bytes less.
// - Procedure Name ends one byte before the next stop on the screens and two in a conversion. It
//   begins two bytes before its own stop, on what is blank unless the source is 13 or 14 bytes
//   long; such a source then leaks into it. Existing files are read with that cut.
// - Duration keeps its full width in a conversion alone.
// - Detection Limit UOM stands last: nothing but the cuts themselves bounds it.
inline constexpr std::array<DefaultsField, 13> defaults_fields{{
    {"Name", 1, {1, 59}, {1, 59}},
    {"Procedure Source", 60, {60, 11}, {60, 14}},
    {"Procedure Name", 74, {72, 19}, {72, 18}},
    {"Units", 92, {92, 9}, {92, 9}},
    {"Fraction", 102, {102, 9}, {102, 9}},
    {"Value Type", 112, {112, 14}, {112, 14}},
    {"Stat Type", 127, {127, 17}, {127, 17}},
    {"Weight Basis", 145, {145, 11}, {145, 11}},
    {"Temp. Basis", 157, {157, 17}, {157, 17}},
    {"Duration", 175, {175, 9}, {175, 10}},
    {"Lab", 185, {185, 9}, {185, 9}},
    {"Detection Limit", 195, {195, 14}, {195, 14}},
    {"Detection Limit UOM", 210, {210, 10}, {210, 12}},
}};

// The places of some fields in the table above.
namespace defaults_field {
inline constexpr std::size_t name = 0;
inline constexpr std::size_t procedure_source = 1;
inline constexpr std::size_t duration = 9;
inline constexpr std::size_t lab = 10;
inline constexpr std::size_t detection_limit_unit = 12;
}  // namespace defaults_field

// A field of a line as a conversion takes it, trimmed. A short line gives what it has.
constexpr std::string_view conversion_value(std::string_view line, std::size_t field) {
    return trim(defaults_fields.at(field).for_conversion.of(line));
}

// The same as the screens that show and edit it take it.
constexpr std::string_view display_value(std::string_view line, std::size_t field) {
    return trim(defaults_fields.at(field).for_display.of(line));
}

}  // namespace brooklander
