namespace keli::bench {}
