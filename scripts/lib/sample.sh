# shellcheck shell=bash
# Sourced: a calendar file with some life in the month of a given day, and none on that day itself, which would raise its
# alert first.
#
#   sample_calendar YEAR MONTH DAY > calendar.dat

sample_record() { # DAY MONTH YEAR TEXT
  printf '"%d/%d/%s=%s"\r\n' "$1" "$2" "$3" "$4"
}

sample_calendar() {
  local year=$((10#$1)) month=$((10#$2)) today=$((10#$3)) i day
  local -a days=(2 4 7 9 12 13 16 19 21 22 25 27)
  local -a texts=(
    'Dentist at nine'
    'Tom && Jane, dinner'
    'Library books back'
    'Train to York 8:15'
    'Pay the rent'
    'Choir'
    'Market: bread, apples, a pot of honey'
    'Car to the garage before ten, ask about the brakes'
    'Football with Sam'
    'Plant the beans'
    'Parents here for lunch'
    'Cinema'
  )
  for i in "${!days[@]}"; do
    day=${days[$i]}
    [ "$day" -eq "$today" ] || sample_record "$day" "$month" "$year" "${texts[$i]}"
  done
  # Every year, and in months that aren't on view.
  [ "$today" -eq 28 ] || sample_record 28 "$month" 9999 "Grandmother's birthday"
  sample_record 1 $((month % 12 + 1)) "$year" 'Quarterly report'
  sample_record 24 $(((month + 5) % 12 + 1)) 9999 'Midway through the year'
}
