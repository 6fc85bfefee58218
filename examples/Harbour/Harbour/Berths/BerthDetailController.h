#import <UIKit/UIKit.h>

@class Berth;

@interface BerthDetailController : UIViewController

- (instancetype)initWithBerth:(Berth *)berth;

@end
