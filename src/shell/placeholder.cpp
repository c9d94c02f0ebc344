// Placeholder: the window models land here.
