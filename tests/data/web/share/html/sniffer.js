// sniffer
