#import <UIKit/UIKit.h>

@interface WindView : UIView

@end
