#!/usr/bin/env perl
# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT

# The photo service on SOAP::Lite, rpc/encoded. Prints its port; ends when its standard input ends.

use strict;
use warnings;
use utf8;

package PhotoPeer;

sub photo {
    my ($name, $width, $height, $isColour) = @_;
    return {
        name     => SOAP::Data->type(string => $name),
        width    => $width,
        height   => $height,
        isColour => SOAP::Data->type(boolean => $isColour),
    };
}

sub echo   { return SOAP::Data->name('text')->type(string => $_[1]); }
sub negate { return SOAP::Data->name('value')->type(boolean => !$_[1]); }

sub add {
    my ($service, $first, $second) = @_;
    die SOAP::Fault->faultcode('Client')->faultstring("No integer: $first") if $first !~ /^-?\d+$/;
    return SOAP::Data->name('sum')->type(int => $first + $second);
}

sub rotate {
    my $photo = $_[1];
    my $rotated = photo($photo->{name}, $photo->{height}, $photo->{width}, $photo->{isColour});
    return SOAP::Data->name('photo')->value($rotated);
}

sub reverse { return SOAP::Data->name('numbers')->value([reverse @{$_[1]}]); }

sub album {
    my @photos = map { photo("photo $_", 100 + $_, 10 * $_, $_ % 2 == 1) } 0 .. $_[1] - 1;
    return SOAP::Data->name('photos')->value(\@photos);
}

sub whoCalls {
    my $caller = $_[-1]->valueof('//Header/caller');
    return SOAP::Data->type(string => $caller ? "$caller->{user} at $caller->{machine}" : 'nobody');
}

sub fail {
    die SOAP::Fault->faultcode($_[1])->faultstring('Größe < 1')->faultdetail(SOAP::Data->name('limit')->value(1));
}

package main;

use HTTP::Daemon;
use IO::Select;
use SOAP::Lite;
use SOAP::Transport::HTTP;

$INC{'PhotoPeer.pm'} = __FILE__;                 # it is here, not to be looked for
@PhotoPeer::ISA = 'SOAP::Server::Parameters';    # for the header, which comes as the last argument

my $service = SOAP::Transport::HTTP::Server->new->dispatch_with({'urn:photoPeer' => 'PhotoPeer'});
my $daemon = HTTP::Daemon->new(LocalAddr => '127.0.0.1', LocalPort => 0) or die "can't listen: $!";
my $events = IO::Select->new($daemon, \*STDIN);
$| = 1;
print 'listening on ', $daemon->sockport, "\n";

while (1) {
    for my $ready ($events->can_read) {
        exit 0 if $ready == \*STDIN;
        my $connection = $daemon->accept or next;
        while (my $request = $connection->get_request) {
            $service->request($request);
            $service->handle;
            $service->response->header(Connection => 'close');
            $connection->send_response($service->response);
            $connection->force_last_request;
        }
        $connection->close;
    }
}
