// Which columns of a statement the grids bound to a data source show.
#pragma once

#include <array>
#include <initializer_list>

namespace brooklander {

// The columns of a statement, by their position in it from 0, in the order in which a grid shows
// them. By position and not by name, since a name can stand twice in a statement. The statement's
// other columns follow behind, hidden; where none are listed, all are shown in their order.
struct BoundColumns {
    static constexpr std::size_t most = 4;

    std::array<int, most> positions{};
    std::size_t count = 0;
    bool with_heading = true;  // row 0 is fixed and holds the column names

    constexpr BoundColumns() = default;
    constexpr BoundColumns(std::initializer_list<int> listed, bool heading = true)
        : with_heading(heading) {
        for (const int position : listed) positions.at(count++) = position;
    }
};

namespace bound {

inline constexpr BoundColumns trips{0, 2, 3, 1};
inline constexpr BoundColumns sample_procedures{1, 2, 4};
inline constexpr BoundColumns gear{0, 1, 2};
inline constexpr BoundColumns gear_configurations{1, 2};
inline constexpr BoundColumns projects{1, 2};
inline constexpr BoundColumns persons{1, 2};
inline constexpr BoundColumns sample_transports{1, 2};
inline constexpr BoundColumns procedures{1, 2};
inline constexpr BoundColumns installations{1, 2, 3, 4};
inline constexpr BoundColumns log_files{4, 7, 8};
inline constexpr BoundColumns logger_groups{2, 3};
inline constexpr BoundColumns setup_groups{1, 2};

// What is done with these two takes row 0 for data: they have no heading.
inline constexpr BoundColumns group_characteristics{{7, 18, 8}, false};
inline constexpr BoundColumns group_contents{{7, 17, 8, 9}, false};

}  // namespace bound
}  // namespace brooklander
