a = NSLocalizedString(@"Smile :)", @"face");
b = NSLocalizedString(@"a (b", @"c"); f(x); } )
