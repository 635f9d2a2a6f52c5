#!/usr/bin/env perl
# SPDX-License-Identifier: Zlib
# The product has no variable outside its records: whatever its objects keep in memory that can be written is declared
# const or constexpr in the sources. And nothing is declared extern.
#   check-state.pl ROOT NM LIBRARY-OR-OBJECT…
# Compilers put some constants into such memory too: hence the look into the sources.
use strict;
use warnings;

my ($root, $nm, @objects) = @ARGV;
die "usage: check-state.pl ROOT NM LIBRARY-OR-OBJECT...\n" unless @objects;
@objects = grep { -e } @objects; # what has been built
unless (@objects) { print "skipped: nothing has been built\n"; exit 77; }

# ---- The sources, by name without folder, without comments, texts and what stands between < and > ----

my @folders = grep { -d } map { "$root/$_" }
    qw(assets audio base console platform program render shell tools typeface webcam world);
my %sources;
my $headers = "";
my $wrong = 0;
open my $list, '-|', 'find', @folders, '(', '-name', '*.h', '-o', '-name', '*.cpp', ')' or die "find: $!\n";
while (my $file = <$list>) {
    chomp $file;
    open my $in, '<', $file or die "$file: $!\n";
    my $text = do { local $/; <$in> };
    $text =~ s{R"\((?:.|\n)*?\)"|//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"}{my $t = $&; $t =~ m{^/} ? '' : '"' . "\n" x ($t =~ tr/\n//) . '"'}gse;
    my $line = 0;
    for (split /\n/, $text) {
        $line++;
        next unless /\bextern\b/ and not /\bextern ""/;
        print substr($file, length($root) + 1), ":$line: extern\n";
        $wrong = 1;
    }
    1 while $text =~ s/<[^<>;{}]*>//g;
    my ($name) = $file =~ m{([^/]+)$};
    $sources{$name} .= $text;
    $headers .= $text if $name =~ /\.h$/;
}
close $list;

# Whether a source declares the name as a constant: constexpr, or const with no pointer that could be turned elsewhere.
sub IsConstant {
    my ($text, $name) = @_;
    return $text =~ /\bconstexpr\b[^;{}]*?\b\Q$name\E\s*[\[({=;]/ || $text =~ /\bconst\b[^;{}*]*?\b\Q$name\E\s*[\[({=;]/;
}

# ---- What lies in memory that can be written ----

my ($symbols, $writable) = (0, 0);
open my $in, '-|', $nm, '-C', '-A', '-f', 'sysv', @objects or die "$nm: $!\n";
while (<$in>) {
    my ($name, undef, $class, undef, undef, undef, $section) = map { s/^\s+|\s+$//gr } split /\|/;
    next unless defined $section and $name =~ s/^(?:.*[:\/])?([^:\/]+\.cpp)\.o(?:bj)?://;
    my $source = $1;
    $symbols++;
    next if $class eq 'U' or $section !~ /^\.t?(data|bss)/ or $section =~ /^\.data\.rel\.ro/;
    # The compiler's own: tables of classes, guards of constants made when first used, sections' names.
    next if $name =~ /^(guard variable for|vtable for|VTT for|construction vtable|typeinfo |std::|DW\.ref\.|\.)/;
    $writable++;
    my $plain = $name =~ s/\[abi:\w+\]$//r;
    1 while $plain =~ s/<[^<>]*>//g;
    $plain =~ s/.*:://;
    next if IsConstant($sources{$source} // '', $plain) or IsConstant($headers, $plain);
    print "$source: $name is not constant\n";
    $wrong = 1;
}
close $in;
die "no symbol found\n" unless $symbols;
print "$symbols symbols, $writable constants in writable memory\n" unless $wrong;
exit $wrong;
