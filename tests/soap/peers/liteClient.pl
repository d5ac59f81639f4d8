#!/usr/bin/env perl
# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT

# A client on SOAP::Lite: liteClient.pl URL. Makes four calls and prints what it understood, a line each.

use strict;
use warnings;
use utf8;

use SOAP::Lite;

binmode STDOUT, ':encoding(UTF-8)';
my $service = SOAP::Lite->uri('urn:photoPeer')->proxy($ARGV[0], timeout => 20);

sub call {
    my $answer = $service->call(@_);
    die join ': ', $answer->faultcode, $answer->faultstring if $answer->fault;
    return $answer->result;
}

sub word { return $_[0] && $_[0] ne 'false' ? 'true' : 'false'; }

print 'echo ', call('echo', SOAP::Data->name('text')->type(string => 'Äpfel <&> 日本語')), "\n";
print 'add ', call('add', SOAP::Data->name('first' => 2147483647), SOAP::Data->name('second' => -40)), "\n";
print 'negate ', word(call('negate', SOAP::Data->name('value')->type(boolean => 0))), "\n";
my $photo = call('rotate', SOAP::Data->name('photo' => \SOAP::Data->value(
    SOAP::Data->name('name')->type(string => 'Möwe.jpg'),
    SOAP::Data->name('width' => 6000),
    SOAP::Data->name('height' => 4000),
    SOAP::Data->name('isColour')->type(boolean => 1))));
print "rotate $photo->{name} $photo->{width} $photo->{height} ", word($photo->{isColour}), "\n";
