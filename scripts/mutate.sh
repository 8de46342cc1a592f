#!/usr/bin/env bash
# Changes single tokens of src/, one at a time, and runs the native tests on each change. A change that no test notices
# is a survivor: the tests do not say what the code does there.
#
# usage: scripts/mutate.sh [COUNT [SEED [PERCENT]]]
# Samples COUNT (300) changes; the same SEED (1) samples the same ones. Fails when less than PERCENT (92) are noticed. Works
# on copies under build/mutate, two at a time, a few seconds a change, a minute when all include it. The pauses of ending
# figures are skipped.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
count=${1:-300}
seed=${2:-1}
wanted=${3:-92}
workers=2
work=$root/build/mutate
patience=60
# Programs with their arguments. The first ones notice most; the others are built only for a change that those let pass.
commands=("scenario_tests --gtest_brief=1 --gtest_fail_fast" "class_tests --gtest_brief=1 --gtest_fail_fast"
          "cost_tests --gtest_brief=1 --gtest_fail_fast" "document_tests --gtest_brief=1 --gtest_fail_fast"
          "torture repetition" "torture calls 0 997" "torture throws 0 29" "torture allocations 0 101")

say() { printf 'mutate: %s\n' "$*"; }

# Lists the possible changes as FILE, LINE, COLUMN, LENGTH, NEW TEXT, PLACE:TEXT of the line, separated by tabs. Texts and
# comments stay as they are; between spaces a sign is an operator and no bracket or pointer.
list_changes() {
    # shellcheck disable=SC2016 # variables of the other language
    git ls-files 'src/*.cpp' 'src/*.h' ':!*_windows.cpp' | xargs perl -ne '
        BEGIN {
            %other = ("<" => "<=", "<=" => "<", ">" => ">=", ">=" => ">", "==" => "!=", "!=" => "==", "&&" => "||",
                      "||" => "&&", "+" => "-", "-" => "+", "*" => "/", "/" => "*", "+=" => "-=", "-=" => "+=");
        }
        $code = $_;
        chomp $code;
        $code =~ s{//.*}{};
        $code =~ s{("(?:\\.|[^"\\])*")}{"\"" . "~" x (length($1) - 2) . "\""}ge;
        next if $code =~ /^\s*(#|static_assert|$)/;
        ($indent, $text) = /^(\s*)(.*)/;
        sub change { print join("\t", $ARGV, $., @_, $_[0] - length($indent) . ":$text"), "\n" }
        while ($code =~ /(?<= )(<=?|>=?|[!=]=|&&|\|\||[-+]=?|[*\/])(?= |$)/g) {
            change($-[1], length $1, $other{$1});
        }
        change($-[1], 2, $1 eq "++" ? "--" : "++") while $code =~ /(\+\+|--)/g;
        change($-[1], length $1, $1 eq "true" ? "false" : "true") while $code =~ /\b(true|false)\b/g;
        change($-[1], 1, "") while $code =~ /(!)(?=[\w(])/g;
        change($-[1], length $1, $1 + 1) while $code =~ /(?<![\w.])(\d+)(?=U?\b)(?![.\w])/g;
        change($-[1], length $1, $1 + 1 . ".0") while $code =~ /(?<![\w.])(\d+\.\d+)(?=F?\b)/g;
        change($-[1], length $1, ";") if $code =~ /^ {4,}(?!return\b|throw\b|delete\b)([A-Za-z][\w.:>-]*\(.*\);)$/;
        close ARGV if eof;
    '
}

# A choice that depends on the seed and on the changes themselves, not on where they stand: the sample of a seed stays
# the same while lines beside it come and go.
sample() {
    # shellcheck disable=SC2016 # variables of the other language
    perl -MDigest::MD5=md5 -e '
        ($seed, $count) = @ARGV;
        @all = sort { $a->[0] cmp $b->[0] } map {
            ($file, $line, $column, $length, $new, $text) = split(/\t/);
            [md5(join("\t", $seed, $file, $new, $text)), $_]
        } <STDIN>;
        print map { $_->[1] } splice(@all, 0, $count);
    ' "$seed" "$1" | cut -f 1-5
}

apply_change() {
    perl -i -pe 'BEGIN { ($line, $column, $length, $new) = splice(@ARGV, 0, 4) } substr($_, $column, $length) = $new if $. == $line' \
        "$2" "$3" "$4" "$5" "$1"
}

prepare_copy() {
    local tree=$1 file
    mkdir -p "$tree"
    while IFS= read -r -d '' file; do # a copy that an earlier run left changed is mended
        cmp -s "$file" "$tree/$file" || cp --parents -t "$tree" "$file"
    done < <(git ls-files -z)
    (cd "$tree" && find src tests include -type f) | { grep -vxFf <(git ls-files) || true; } | sed "s|^|$tree/|" | xargs -r rm
    cmake -S "$tree" -B "$tree/build" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O0 \
        -DRULECANVAS_TESTS=ON \
        -DCMAKE_CXX_FLAGS='-w -D_GLIBCXX_ASSERTIONS -fsanitize=undefined -fno-sanitize=vptr -fsanitize-undefined-trap-on-error' >"$tree.log" 2>&1 &&
        build_copy "$tree" scenario_tests class_tests cost_tests document_tests torture
}

# Builds the programs in the copy.
build_copy() { cmake --build "$1/build" -j1 --target "${@:2}" >"$1.log" 2>&1; }

# Whether a command of the list, in the copy, ends well in time.
run_command() {
    local tree=$1 command=$2
    # shellcheck disable=SC2086 # the words of the command
    (cd "$tree/build" && RULECANVAS_TRACE=1 LD_PRELOAD=$work/no_pause.so timeout "$patience" ./$command >"$tree.out" 2>&1)
}

# Prints the fate of the change in the fields: noticed, survived, or not built.
try_change() {
    local tree=$1 file=$2 fate=survived command
    cp "$tree/$file" "$tree.kept"
    apply_change "$tree/$file" "$3" "$4" "$5" "$6"
    for command in "${commands[@]}"; do
        if ! build_copy "$tree" "${command%% *}"; then
            fate=unbuilt
            break
        elif ! run_command "$tree" "$command"; then
            fate=noticed
            break
        fi
    done
    printf '%s\t%s:%s\t%s\n' "$fate" "$file" "$3" "$(sed -n "$3s/^ *//p" "$tree/$file")"
    cp "$tree.kept" "$tree/$file"
}

run_worker() {
    local number=$1 index=0 file line column length new
    while IFS=$'\t' read -r file line column length new; do
        index=$((index + 1))
        ((index % workers == number)) || continue
        try_change "$work/tree$number" "$file" "$line" "$column" "$length" "$new" >>"$work/fates"
        printf 'mutate:       %d of %d\n' "$index" "$count"
    done <"$work/changes"
}

scripts/setup.sh build test
mkdir -p "$work"
: >"$work/fates"
list_changes >"$work/all"
sample "$count" <"$work/all" >"$work/changes"
say "[1/3] building two copies; $(wc -l <"$work/changes") of $(wc -l <"$work/all") possible changes are sampled"
printf 'int nanosleep(const void* a, void* b) { return 0; }\n%s\n' \
    'int clock_nanosleep(int c, int f, const void* a, void* b) { return 0; }' |
    cc -shared -fPIC -w -x c - -o "$work/no_pause.so"
for ((worker = 0; worker < workers; ++worker)); do
    prepare_copy "$work/tree$worker" &
done
wait
passing=()
for command in "${commands[@]}"; do
    if run_command "$work/tree0" "$command"; then
        passing+=("$command")
    else
        say "      left out, because it fails without any change: $command"
    fi
done
commands=("${passing[@]}")
if ((${#commands[@]} == 0)); then
    say "nothing to try with; see $work/tree0.log"
    exit 1
fi

say "[2/3] trying"
for ((worker = 0; worker < workers; ++worker)); do
    run_worker "$worker" &
done
wait

say "[3/3] survivors"
sort "$work/fates" | awk -F '\t' -v wanted="$wanted" '
    { ++fates[$1] }
    $1 == "survived" { print "  " $2 "\t" $3 }
    END {
        tried = fates["noticed"] + fates["survived"]
        percent = tried ? 100 * fates["noticed"] / tried : 0
        printf "mutate: %d of %d changes were noticed, %.1f %%; %d more did not compile\n", fates["noticed"], tried, percent,
            fates["unbuilt"]
        exit percent < wanted
    }'
