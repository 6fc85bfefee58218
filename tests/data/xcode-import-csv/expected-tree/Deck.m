NSString *hoist = NSLocalizedString(@"Hoist", @"Button");
NSString *reef = NSLocalizedString(@"Reef", @"Button; takes in some sail");
NSString *lines = NSLocalizedString(@"Two\nlines", nil);
NSString *belay = NSLocalizedStringFromTable(@"Belay", @"Knots", @"Name of a knot");
NSString *both = NSLocalizedStringFromTable(@"Hoist", @"Knots", @"Name of a knot");
