# shellcheck shell=bash
# A firm's folder: the programs and, in and under it, all of the firm's data. Sourced by ./run and by the day under
# an X server.

# put_programs BUILD FOLDER: the programs into the folder, where those of the build are newer. They are renamed into
# place, so that a program that is running there just now goes on with its own file.
put_programs() {
  local program
  mkdir -p "$2" || return 1
  for program in Velmara_2020 Velmara_2020_Descri; do
    [ "$1/$program" -nt "$2/$program" ] || continue
    cp "$1/$program" "$2/.$program.new" && mv -f "$2/.$program.new" "$2/$program" || return 1
  done
}

# make_sample_firm BUILD FOLDER [YYYYMMDD...]: a new folder with the sample firm of data/demo, the programs, and the
# sample's day as that of the given dates. It comes into being whole or not at all. What lists the sample doesn't bring
# are made at the first start, as with any new firm.
make_sample_firm() {
  local file date new=$2.new
  rm -rf "$new"
  put_programs "$1" "$new" || return 1
  for file in data/demo/*; do
    [ "${file##*/}" = giornata.txt ] || cp "$file" "$new/" || return 1
  done
  for date in "${@:3}"; do
    mkdir -p "$new/${date:0:4}" && cp data/demo/giornata.txt "$new/${date:0:4}/$date.txt" || return 1
  done
  mv "$new" "$2"
}
