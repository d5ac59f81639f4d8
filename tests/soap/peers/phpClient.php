<?php
// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT

// A client on PHP's SoapClient, without a description: phpClient.php URL. Makes four calls and prints what it
// understood, a line each.

ini_set('default_socket_timeout', '20');
$service = new SoapClient(null, ['location' => $argv[1], 'uri' => 'urn:photoPeer', 'keep_alive' => false]);

function call($name, ...$parameters)
{
    global $service;
    return $service->__soapCall($name, $parameters);
}

function word($value)
{
    return filter_var($value, FILTER_VALIDATE_BOOLEAN) ? 'true' : 'false';
}

echo 'echo ', call('echo', new SoapParam('Äpfel <&> 日本語', 'text')), "\n";
echo 'add ', call('add', new SoapParam(2147483647, 'first'), new SoapParam(-40, 'second')), "\n";
echo 'negate ', word(call('negate', new SoapParam(false, 'value'))), "\n";
$photo = (object)['name' => 'Möwe.jpg', 'width' => 6000, 'height' => 4000, 'isColour' => true];
$photo = call('rotate', new SoapParam($photo, 'photo'));
echo "rotate $photo->name $photo->width $photo->height ", word($photo->isColour), "\n";
