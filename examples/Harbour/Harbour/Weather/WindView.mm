#import "WindView.h"

#include <cmath>
#include <vector>

@implementation WindView {
    std::vector<double> _gusts;
}

- (void)drawRect:(CGRect)rect {
    NSString *title = NSLocalizedString(@"Gusts", @"Title of the wind view");
    [title drawInRect:rect withFont:[UIFont boldSystemFontOfSize:14]];
    for (double gust : _gusts) {
        UIRectFill(CGRectMake(0, rect.size.height - std::fmin(gust, rect.size.height), 4, gust));
    }
}

@end
