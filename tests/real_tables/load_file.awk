# What the load file of a table must hold under a configuration of the import module, worked out
# from the table alone: columns counted from 1, the heading in the first line, data from the second.
#   station, date, time, sample, depth, comments, results: columns, 0 where there is none
#   filler: what generated activity ids begin with
BEGIN { RS = "\r\n"; FS = "\t"; ORS = "\r\n"; last = 50 }

function trim(text) { sub(/^ +/, "", text); sub(/ +$/, "", text); return text }

function field(column) { return column ? $column : "" }

function normalised(cell,   value) {
  value = trim(cell)
  if (value == "ND" || value == "nd" || value == "*Non-detect") return "*Non-detect"
  if (value == "*Present >QL") return value
  if (substr(cell, 1, 1) == "<" || substr(cell, length(cell)) == "<") return "*Non-detect"
  if (substr(cell, length(cell)) == ">") return "*Present >QL"
  return value
}

NR == 1 { for (c = results; c <= last; ++c) name[c] = trim($c); next }

{
  clock = field(time)
  if (length(clock) == 3) clock = "0" clock
  id = trim(field(sample))
  if (!sample || field(sample) == "") id = filler "-" (NR - 1)
  depth_piece = depth ? trim(field(depth) "~~") : "~~"
  row = "~" field(station) "~~" field(date) "~" clock "~~" id "~" trim(field(comments)) "~~" \
        depth_piece "~~~~~~~~"
  for (c = results; c <= NF && c <= last; ++c) {
    value = normalised($c)
    if (value != "") print row name[c] "~~~~~~~~~~" value "~~~"
  }
}
