# shellcheck shell=bash
# How times are taken and put into the table; sourced by bench/run and bench/statistiche.
#   VOLTE    how often each thing is timed, after a first time that isn't counted (5)
#   TABELLA  a file that gets a line for each comparison: work, our time, peer, its time, ratio, goal, result

volte=${VOLTE:-5}

# mediana COMMAND...: milliseconds of the command, the median of several runs.
mediana() {
  "$@" || return 1
  for _ in $(seq "$volte"); do
    local prima dopo
    prima=$(date +%s%N)
    "$@" || return 1
    dopo=$(date +%s%N)
    echo $(((dopo - prima) / 1000))
  done | sort -n | awk '{ v[NR] = $1 } END { printf "%.2f\n", v[int((NR + 1) / 2)] / 1000 }'
}

# mediana_detta FIELD COMMAND...: the same of a number that the command prints itself.
mediana_detta() {
  local campo=$1
  shift
  for _ in $(seq "$volte"); do
    "$@" | cut -d' ' -f"$campo" || return 1
  done | sort -g | awk '{ v[NR] = $1 } END { print v[int((NR + 1) / 2)] }'
}

# confronta WORK OURS PEER ITS GOAL SAME: a line of the table. Times in milliseconds; GOAL is what ours may be of its;
# SAME tells whether both had the same result ("si"), without which the ratio says nothing.
confronta() {
  awk -v lavoro="$1" -v nostro="$2" -v altro="$3" -v suo="$4" -v meta="$5" -v uguali="$6" 'BEGIN {
    esito = uguali != "si" ? "NON CONTA: risultati diversi" : nostro <= meta * suo ? "si" : "no"
    printf "%s\t%.1f ms\t%s\t%.1f ms\t%.3f\t%.3f\t%s\n", lavoro, nostro, altro, suo, nostro / suo, meta, esito }' |
    tee -a "${TABELLA:-/dev/null}" | mostra
}

# limite WORK OURS GOAL UNIT: the same without a peer.
limite() {
  awk -v lavoro="$1" -v nostro="$2" -v meta="$3" -v unita="$4" 'BEGIN {
    printf "%s\t%s %s\t\t\t\t%s %s\t%s\n", lavoro, nostro, unita, meta, unita, nostro + 0 <= meta + 0 ? "si" : "no" }' |
    tee -a "${TABELLA:-/dev/null}" | mostra
}

# The table's lines, lined up.
mostra() {
  awk -F'\t' '{ printf "%-48s %12s  %-22s %12s %8s %9s  %s\n", $1, $2, $3, $4, $5, $6, $7 }'
}

titoli() { printf 'lavoro\tnoi\taltro programma\til suo\trapporto\tmeta\traggiunta\n' | mostra; }
