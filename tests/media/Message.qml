import Smil 1.0

Slideshow {
    focus: true
}
