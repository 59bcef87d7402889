# Reads what `gcov --stdout --branch-counts` prints of all objects and prints a table of the lines and
# branches that are reached, by folder below ROOT/src/. A line of a header counts as reached where
# any object reaches it. Branches that only an exception takes are left out. What is not reached goes
# to the file UNREACHED.

# `        5:   12:text of the line`; the source's name stands in line 0.
match($0, /^ *[-0-9#=*]+:  *[0-9]+:/) {
  split($0, part, ":")
  count = part[1]
  number = part[2] + 0
  if (number == 0 && part[3] == "Source") {
    file = part[4]
    if (index(file, root "/") == 1) file = substr(file, length(root) + 2)
    sub(/^\.\.\//, "", file)  # from the folder of the build
    inside = file ~ /^src\//
    next
  }
  branch = 0
  line = file ":" number
  if (!inside || count ~ /-/) next
  if (!(line in reached)) {
    reached[line] = 0
    text[line] = substr($0, RLENGTH + 1)
    order[++known] = line
  }
  if (count ~ /[0-9]/) reached[line] = 1
}

inside && /^branch / {
  ++branch
  if (/\(throw\)/) next
  key = line SUBSEP branch
  if (!(key in taken)) taken[key] = 0
  if ($0 !~ /never executed/ && $4 > 0) taken[key] = 1
}

function folder_of(place) {
  sub(/\/[^\/]*$/, "", place)
  return place
}

function row(name) {
  return sprintf("| `%s` | %d | %.1f %% | %d | %.1f %% |", name, lines[name],
    100 * lines_reached[name] / lines[name], branches[name],
    branches[name] ? 100 * branches_taken[name] / branches[name] : 100)
}

END {
  for (i = 1; i <= known; ++i) {
    line = order[i]
    folder = folder_of(line)
    ++lines[folder]; ++lines["all"]
    lines_reached[folder] += reached[line]; lines_reached["all"] += reached[line]
    if (!reached[line]) print line ": " text[line] >unreached
  }
  for (key in taken) {
    split(key, part, SUBSEP)
    folder = folder_of(part[1])
    ++branches[folder]; ++branches["all"]
    branches_taken[folder] += taken[key]; branches_taken["all"] += taken[key]
    if (!taken[key] && reached[part[1]]) missed[part[1]] = 1
  }
  for (i = 1; i <= known; ++i) {
    if (order[i] in missed) print order[i] ": one way only: " text[order[i]] >unreached
  }
  print "| folder | lines | reached | branches | taken |"
  print "|---|---|---|---|---|"
  fflush()
  for (name in lines) if (name != "all") print row(name) | "sort"
  close("sort")
  print row("all")
}
